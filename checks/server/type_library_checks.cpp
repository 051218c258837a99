#include "com/bstr.h"
#include "server/dll.h"

#include <brxOpcDlgs6.h>
#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace brx::checks {

namespace {

using testing::ElementsAre;

/// One line that says all that programs are compiled against.
std::string signature_of(ITypeInfo& info, const FUNCDESC& function) {
    std::vector<BSTR> names(16, nullptr);
    UINT count = 0;
    info.GetNames(function.memid, names.data(), static_cast<UINT>(names.size()), &count);
    std::string line = std::to_string(function.oVft / static_cast<int>(sizeof(void*))) + " " +
                       std::to_string(function.memid) + " ";
    if (function.invkind == INVOKE_PROPERTYGET) line += "get ";
    if (function.invkind == INVOKE_PROPERTYPUT) line += "put ";
    line += brx::text_of(names[0]) + "(";
    for (SHORT i = 0; i < function.cParams; ++i) {
        const ELEMDESC& parameter = function.lprgelemdescParam[i];
        const auto number = static_cast<UINT>(i) + 1;
        if (i > 0) line += ", ";
        const bool named = function.invkind == INVOKE_FUNC && number < count;
        if (named) line += brx::text_of(names[number]) + ":";
        const TYPEDESC* type = &parameter.tdesc;
        for (; type->vt == VT_PTR; type = type->lptdesc) line += "*";
        line += std::to_string(type->vt);
        if (parameter.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) line += " retval";
    }
    for (UINT i = 0; i < count; ++i) SysFreeString(names[i]);
    return line + ")";
}

class TypeLibraryTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(LoadTypeLibEx(dll_path().c_str(), REGKIND_NONE, library.out()), S_OK); }

    /// The members of an interface behind those of IDispatch, in the order of their slots.
    std::vector<std::string> members_of(REFIID iid) {
        com_ptr<ITypeInfo> dispatch;
        EXPECT_EQ(library->GetTypeInfoOfGuid(iid, dispatch.out()), S_OK);
        HREFTYPE reference = 0;
        com_ptr<ITypeInfo> info;
        EXPECT_EQ(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference), S_OK);
        EXPECT_EQ(dispatch->GetRefTypeInfo(reference, info.out()), S_OK);
        std::vector<std::string> members;
        FUNCDESC* function = nullptr;
        for (UINT i = 0; SUCCEEDED(info->GetFuncDesc(i, &function)); ++i) {
            members.push_back(signature_of(*info.get(), *function));
            EXPECT_NE(help_of(*info.get(), function->memid), "") << members.back();
            info->ReleaseFuncDesc(function);
        }
        return members;
    }

    template <class Described> std::string help_of(Described& described, int member) {
        Bstr help;
        EXPECT_EQ(described.GetDocumentation(member, nullptr, help.out(), nullptr, nullptr), S_OK);
        return help.text();
    }

    Apartment apartment;
    com_ptr<ITypeLib> library;
};

} // namespace

TEST_F(TypeLibraryTest, IsTheDllsFirstAndBearsItsName) {
    Bstr name;
    EXPECT_EQ(library->GetDocumentation(MEMBERID_NIL, name.out(), nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(name.text(), "brxOpcDlgs6");
    TLIBATTR* attributes = nullptr;
    ASSERT_EQ(library->GetLibAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->guid, LIBID_brxOpcDlgs6);
    EXPECT_EQ(attributes->wMajorVerNum, 6);
    EXPECT_EQ(attributes->wMinorVerNum, 0);
    library->ReleaseTLibAttr(attributes);
}

TEST_F(TypeLibraryTest, MembersHaveTheirPublishedSlotsNamesAndParameters) {
    EXPECT_THAT(members_of(IID__ServerSelect),
                ElementsAre("7 1 get ServerIndex(*2 retval)", "8 1 put ServerIndex(2)",
                            "9 2 Show(hlxOPCServers:*9, Result:*11 retval)"));
    EXPECT_THAT(members_of(IID__ServerAdd),
                ElementsAre("7 1 get ServerIndex(*2 retval)", "8 1 put ServerIndex(2)",
                            "9 2 Show(hlxOPCServers:9, Result:*11 retval)"));
    EXPECT_THAT(members_of(IID__ServerInformation), ElementsAre("7 1 Show(OPCServer:9, Result:*11 retval)"));
    EXPECT_THAT(members_of(IID__LeafSelect),
                ElementsAre("7 1 Show(OPCServer:9, OPCGroup:9, Result:*11 retval)",
                            "8 2 get ItemID(*8 retval)", "9 2 put ItemID(8)"));
    EXPECT_THAT(members_of(IID__TestConfiguration), ElementsAre("7 1 Show(hlxOPCTest:9, Result:*11 retval)"));
    EXPECT_THAT(members_of(IID__ConfigurationSetup), ElementsAre("7 1 Show(hlxOPCConfiguration:9)"));
}

TEST_F(TypeLibraryTest, EverythingInItHasAHelpText) {
    EXPECT_NE(help_of(*library.get(), MEMBERID_NIL), "");
    ASSERT_GT(library->GetTypeInfoCount(), 0u);
    for (UINT i = 0; i < library->GetTypeInfoCount(); ++i)
        EXPECT_NE(help_of(*library.get(), static_cast<int>(i)), "") << i;
}

TEST_F(TypeLibraryTest, EveryClassInItCanBeMadeAndHasItsInterfaceAsDefault) {
    const Dll dll;
    int classes = 0;
    for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
        TYPEKIND kind{};
        library->GetTypeInfoType(i, &kind);
        if (kind != TKIND_COCLASS) continue;
        ++classes;
        com_ptr<ITypeInfo> info;
        library->GetTypeInfo(i, info.out());
        TYPEATTR* attributes = nullptr;
        ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
        const CLSID clsid = attributes->guid;
        EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FCANCREATE);
        info->ReleaseTypeAttr(attributes);

        HREFTYPE reference = 0;
        com_ptr<ITypeInfo> first;
        ASSERT_EQ(info->GetRefTypeOfImplType(0, &reference), S_OK);
        ASSERT_EQ(info->GetRefTypeInfo(reference, first.out()), S_OK);
        ASSERT_EQ(first->GetTypeAttr(&attributes), S_OK);
        com_ptr<IUnknown> object;
        const auto factory = dll.factory(clsid);
        ASSERT_TRUE(factory);
        EXPECT_EQ(factory->CreateInstance(nullptr, attributes->guid, reinterpret_cast<void**>(object.out())),
                  S_OK);
        first->ReleaseTypeAttr(attributes);
    }
    EXPECT_EQ(classes, 6);
}

TEST_F(TypeLibraryTest, TheSlotsAreWhereItSays) {
    const Dll dll;
    const auto object = dll.create<_ServerSelect>(CLSID_ServerSelect);
    using Get = HRESULT(STDMETHODCALLTYPE*)(void*, short*);
    using Put = HRESULT(STDMETHODCALLTYPE*)(void*, short);
    void** const slots = *reinterpret_cast<void***>(object.get());
    short value = 0;
    EXPECT_EQ(reinterpret_cast<Put>(slots[8])(object.get(), -32768), S_OK);
    EXPECT_EQ(reinterpret_cast<Get>(slots[7])(object.get(), &value), S_OK);
    EXPECT_EQ(value, -32768);
}

} // namespace brx::checks
