#include "adapters/to_com.h"
#include "dll/com_object_factory.h"
#include "dll/registry.h"
#include "server/class_for_process.h"
#include "server/dll.h"
#include "server/script_object.h"

#include <brxDatabase6.h>
#include <brxError6.h>
#include <brxOpcAuto6.h>
#include <gtest/gtest.h>
#include <hlxER01.h>

namespace brx::checks {

namespace {

constexpr GUID another_class = {0x0e7f5f0c, 0x7a68, 0x4c55, {0x8f, 0x21, 0x61, 0x0b, 0x2b, 0x0e, 0x6a, 0x77}};

class ObjectFactoryTest : public testing::Test {
protected:
    std::int32_t error_of_creating(const std::string& class_name) {
        try {
            factory.create(class_name);
            return 0;
        } catch (const Error& error) {
            return error.number();
        }
    }

    ClassForProcess offering(REFCLSID clsid) {
        return {clsid, [this] { return com_ptr<IDispatch>(&host_object); }};
    }

    Apartment apartment;
    ScriptObject host_object;
    ComObjectFactory factory;
};

} // namespace

TEST_F(ObjectFactoryTest, AClassOfTheHostIsFoundByItsPublishedIdentifier) {
    const auto offered = offering(CLSID_hlxHelp);
    EXPECT_EQ(dispatch_of(factory.create("brxOpcAuto6.hlxHelp")).get(), &host_object);
    EXPECT_EQ(error_of_creating("brxOpcAuto6.hlxMessage"), 429);
}

TEST_F(ObjectFactoryTest, ARegisteredNameComesBeforeThePublishedIdentifier) {
    ScriptObject other;
    const ClassForProcess published(CLSID_hlxHelp, [&] { return com_ptr<IDispatch>(&other); });
    const auto named = offering(another_class);
    RegistryChange name(HKEY_LOCAL_MACHINE);
    name.write({L"Software\\Classes\\brxOpcAuto6.hlxHelp\\CLSID", L""},
               L"{0E7F5F0C-7A68-4C55-8F21-610B2B0E6A77}");
    EXPECT_EQ(dispatch_of(factory.create("brxOpcAuto6.hlxHelp")).get(), &host_object);
}

TEST_F(ObjectFactoryTest, EachPublishedClassOfTheHostHasItsOwnIdentifier) {
    const std::pair<const char*, const CLSID&> published[] = {
        {"brxError6.Error", CLSID_Error},
        {"hlxER01.Error", CLSID_hlxER01_Error},
        {class_name::hlxOPCServer, CLSID_hlxOPCServer},
        {class_name::hlxMessage, CLSID_hlxMessage},
        {class_name::hlxHelp, CLSID_hlxHelp},
        {class_name::hlxTestGroup, CLSID_hlxTestGroup},
        {class_name::hlxPart, CLSID_hlxPart},
        {class_name::hlxPartGroup, CLSID_hlxPartGroup},
        {class_name::hlxProcess, CLSID_hlxProcess},
        {class_name::hlxProcessGroup, CLSID_hlxProcessGroup},
        {class_name::hlxJob, CLSID_hlxJob},
        {class_name::hlxJobGroup, CLSID_hlxJobGroup},
        {class_name::hlxShift, CLSID_hlxShift},
        {class_name::hlxShiftGroup, CLSID_hlxShiftGroup},
        {class_name::hlxDescriptor, CLSID_hlxDescriptor},
        {class_name::hlxDescriptorGroup, CLSID_hlxDescriptorGroup},
        {class_name::hlxTestSelection, CLSID_hlxTestSelection},
        {class_name::hlxPartSelection, CLSID_hlxPartSelection},
        {class_name::hlxProcessSelection, CLSID_hlxProcessSelection},
        {class_name::hlxJobSelection, CLSID_hlxJobSelection},
        {class_name::hlxShiftSelection, CLSID_hlxShiftSelection},
        {class_name::hlxDescriptorSelection, CLSID_hlxDescriptorSelection},
    };
    for (const auto& [name, clsid] : published) {
        EXPECT_EQ(error_of_creating(name), 429) << name;
        const auto offered = offering(clsid);
        EXPECT_EQ(error_of_creating(name), 0) << name;
    }
}

TEST_F(ObjectFactoryTest, AClassThatNobodyKnowsCannotBeCreated) {
    EXPECT_EQ(error_of_creating("brxOpcAuto6.hlxUnknown"), 429);
    EXPECT_EQ(error_of_creating(""), 429);
}

TEST_F(ObjectFactoryTest, AClassThatRefusesCannotBeCreated) {
    const ClassForProcess refusing(CLSID_hlxHelp,
                                   []() -> com_ptr<IDispatch> { throw Error(error::out_of_memory); });
    EXPECT_EQ(error_of_creating("brxOpcAuto6.hlxHelp"), 429);
}

} // namespace brx::checks
