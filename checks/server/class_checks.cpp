#include "server/dll.h"

#include <brxOpcDlgs6.h>
#include <gtest/gtest.h>
#include <ocidl.h>

namespace brx::checks {

namespace {

class ClassTest : public testing::Test {
protected:
    Apartment apartment;
    Dll dll;
};

} // namespace

TEST_F(ClassTest, EachPublicClassGivesItsOwnInterface) {
    EXPECT_TRUE(dll.create<_ServerSelect>(CLSID_ServerSelect));
    EXPECT_TRUE(dll.create<_ServerAdd>(CLSID_ServerAdd));
    EXPECT_TRUE(dll.create<_ServerInformation>(CLSID_ServerInformation));
    EXPECT_TRUE(dll.create<_LeafSelect>(CLSID_LeafSelect));
    EXPECT_TRUE(dll.create<_TestConfiguration>(CLSID_TestConfiguration));
    EXPECT_TRUE(dll.create<_ConfigurationSetup>(CLSID_ConfigurationSetup));
    EXPECT_FALSE(dll.create<_ServerAdd>(CLSID_ServerSelect));
    EXPECT_FALSE(dll.create<_ServerSelect>(CLSID_ServerInformation));
}

TEST_F(ClassTest, AnUnknownClassIsNotAvailable) {
    void* object = &dll;
    EXPECT_EQ(dll.class_object(IID__ServerSelect, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(object, nullptr);
}

TEST_F(ClassTest, AClassObjectIsAFactoryAndNothingElse) {
    void* object = &dll;
    EXPECT_EQ(dll.class_object(CLSID_ServerSelect, IID_IDispatch, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(dll.class_object(CLSID_ServerSelect, IID_IClassFactory, nullptr), E_POINTER);
    EXPECT_TRUE(dll.can_unload());
}

TEST_F(ClassTest, NoClassTakesPartInAnAggregate) {
    const auto outer = dll.create<IUnknown>(CLSID_ServerAdd);
    void* object = &dll;
    EXPECT_EQ(dll.factory(CLSID_ServerSelect)->CreateInstance(outer.get(), IID_IUnknown, &object),
              CLASS_E_NOAGGREGATION);
    EXPECT_EQ(object, nullptr);
}

TEST_F(ClassTest, AnObjectThatLacksTheInterfaceWantedIsNotLeftBehind) {
    void* object = &dll;
    EXPECT_EQ(dll.factory(CLSID_ServerSelect)->CreateInstance(nullptr, IID_IPersist, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_TRUE(dll.can_unload());
}

TEST_F(ClassTest, AnObjectIsTheSameThroughAllItsInterfaces) {
    const auto object = dll.create<_ServerSelect>(CLSID_ServerSelect);
    const auto identity = object.as<IUnknown>();
    EXPECT_EQ(object.as<IDispatch>().as<IUnknown>().get(), identity.get());
    EXPECT_EQ(object.as<IProvideClassInfo>().as<IUnknown>().get(), identity.get());
    EXPECT_EQ(object.as<IProvideClassInfo>().as<_ServerSelect>().get(), object.get());
}

TEST_F(ClassTest, AnObjectTellsItsClass) {
    const auto object = dll.create<IProvideClassInfo>(CLSID_ServerAdd);
    com_ptr<ITypeInfo> info;
    ASSERT_EQ(object->GetClassInfo(info.out()), S_OK);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
    EXPECT_EQ(attributes->guid, CLSID_ServerAdd);
    info->ReleaseTypeAttr(attributes);
}

TEST_F(ClassTest, TheDllMayGoWhenNothingOfItIsLeft) {
    EXPECT_TRUE(dll.can_unload());
    auto factory = dll.factory(CLSID_ServerSelect);
    EXPECT_FALSE(dll.can_unload());
    auto object = dll.create<_ServerSelect>(CLSID_ServerSelect);
    factory = nullptr;
    EXPECT_FALSE(dll.can_unload());
    com_ptr<ITypeInfo> info;
    EXPECT_EQ(object->GetTypeInfo(0, LOCALE_NEUTRAL, info.out()), S_OK);
    object = nullptr;
    EXPECT_TRUE(dll.can_unload());
}

TEST_F(ClassTest, AHostsLocksKeepTheDllUntilTheLastIsGone) {
    dll.factory(CLSID_ServerSelect)->LockServer(TRUE);
    dll.factory(CLSID_ServerAdd)->LockServer(TRUE);
    EXPECT_FALSE(dll.can_unload());
    dll.factory(CLSID_ServerAdd)->LockServer(FALSE);
    EXPECT_FALSE(dll.can_unload());
    dll.factory(CLSID_ServerAdd)->LockServer(FALSE);
    EXPECT_TRUE(dll.can_unload());
    dll.factory(CLSID_ServerAdd)->LockServer(FALSE);
    EXPECT_TRUE(dll.can_unload());
    dll.factory(CLSID_ServerAdd)->LockServer(TRUE);
    EXPECT_FALSE(dll.can_unload());
    dll.factory(CLSID_ServerAdd)->LockServer(FALSE);
}

TEST_F(ClassTest, AnObjectLivesInWhicheverApartmentItIsMade) {
    struct Thread {
        static DWORD WINAPI run(void* dll) {
            const Apartment own;
            const auto object = static_cast<Dll*>(dll)->create<_ServerSelect>(CLSID_ServerSelect);
            short position = 0;
            return object && object->put_ServerIndex(7) == S_OK &&
                           object->get_ServerIndex(&position) == S_OK && position == 7
                       ? 0
                       : 1;
        }
    };
    const HANDLE thread = CreateThread(nullptr, 0, &Thread::run, &dll, 0, nullptr);
    ASSERT_EQ(WaitForSingleObject(thread, 10'000), WAIT_OBJECT_0);
    DWORD status = 1;
    GetExitCodeThread(thread, &status);
    CloseHandle(thread);
    EXPECT_EQ(status, 0u);
    EXPECT_TRUE(dll.can_unload());
}

} // namespace brx::checks
