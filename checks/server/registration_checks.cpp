#include "dll/registry.h"
#include "server/dll_copy.h"
#include "server/expected_registration.h"
#include "server/registry_snapshot.h"

#include <brxOpcDlgs6.h>
#include <gtest/gtest.h>

namespace brx::checks {

namespace {

const std::wstring classes_path = classes_key;
const std::wstring select_class = classes_path + L"\\CLSID\\{FFF1633C-31EE-4CFE-BE2F-C0E070EC992B}";
const std::wstring library_path = classes_path + L"\\TypeLib\\{438E101D-A88C-4F38-BC9F-703D56A00BBB}";
const wchar_t* const class_names[] = {L"brxOpcDlgs6.ServerSelect",      L"brxOpcDlgs6.ServerAdd",
                                      L"brxOpcDlgs6.ServerInformation", L"brxOpcDlgs6.LeafSelect",
                                      L"brxOpcDlgs6.TestConfiguration", L"brxOpcDlgs6.ConfigurationSetup"};

#ifdef _WIN64
constexpr const wchar_t* platform = L"win64";
constexpr REGSAM view_of_other_bits = KEY_WOW64_32KEY;
#else
constexpr const wchar_t* platform = L"win32";
constexpr REGSAM view_of_other_bits = KEY_WOW64_64KEY;
#endif

RegistrySnapshot machine_classes() { return take_snapshot(HKEY_LOCAL_MACHINE, classes_path); }
RegistrySnapshot user_classes() { return take_snapshot(HKEY_CURRENT_USER, classes_path); }

/// Tells the lines that differ, and only those.
void expect_same(const RegistrySnapshot& now, const RegistrySnapshot& expected) {
    for (const std::wstring& each : lines_beyond(expected, now)) ADD_FAILURE() << "unexpected: " << each;
    for (const std::wstring& each : lines_beyond(now, expected)) ADD_FAILURE() << "missing: " << each;
}

RegistrySnapshot with_registration(RegistrySnapshot before, const std::wstring& path) {
    before.merge(expected_registration(path));
    return before;
}

/// An object of a registered class, found the way the system does it. Not every system looks into the user's
/// part of the registry.
com_ptr<IDispatch> create_as_registered(HKEY hive, const std::wstring& name) {
    const auto text = [&](const std::wstring& key) {
        return registry_text(hive, {classes_path + L"\\" + key, L""});
    };
    const std::wstring id = text(name + L"\\CLSID");
    CLSID clsid{};
    EXPECT_EQ(CLSIDFromString(id.c_str(), &clsid), S_OK) << id;
    return Dll(text(L"CLSID\\" + id + L"\\InprocServer32")).create<IDispatch>(clsid);
}

/// The user's name of a class as a key that goes with the session: no lasting key can be made below it, so
/// the registration fails there.
class UnwritableName {
public:
    UnwritableName() {
        HKEY key = nullptr;
        EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, path_.c_str(), 0, nullptr, REG_OPTION_VOLATILE,
                                  KEY_ALL_ACCESS, nullptr, &key, nullptr),
                  ERROR_SUCCESS);
        RegCloseKey(key);
    }
    UnwritableName(const UnwritableName&) = delete;
    UnwritableName& operator=(const UnwritableName&) = delete;
    ~UnwritableName() { RegDeleteKeyW(HKEY_CURRENT_USER, path_.c_str()); }

private:
    const std::wstring path_ = classes_path + L"\\brxOpcDlgs6.ServerInformation";
};

class RegistrationTest : public testing::Test {
protected:
    RegistrationTest() {
        // Every user has this key; some systems make it only when it is needed.
        RegistryKey().create(HKEY_CURRENT_USER, classes_path);
        // What a run that was broken off left behind.
        dll.install(false, L"user");
        dll.unregister_for_machine();
        machine_before = machine_classes();
        user_before = user_classes();
    }

    void TearDown() override {
        dll.install(false, L"user");
        dll.unregister_for_machine();
        expect_same(machine_classes(), machine_before);
        expect_same(user_classes(), user_before);
    }

    Apartment apartment;
    Dll dll;
    RegistrySnapshot machine_before;
    RegistrySnapshot user_before;
};

} // namespace

TEST_F(RegistrationTest, ForTheMachineItWritesWhatHostsLookFor) {
    ASSERT_EQ(dll.register_for_machine(), S_OK);
    RegistrySnapshot added = lines_beyond(machine_before, machine_classes());
    // Some systems show the same keys a second time to programs of other bits.
    std::erase_if(added, [](const std::wstring& line) { return line.starts_with(L"[wow6432node\\"); });
    expect_same(added, expected_registration(dll_path()));
    EXPECT_TRUE(lines_beyond(machine_classes(), machine_before).empty());
    expect_same(user_classes(), user_before);
}

TEST_F(RegistrationTest, ForTheMachineNothingIsLeftBehind) {
    ASSERT_EQ(dll.register_for_machine(), S_OK);
    EXPECT_EQ(dll.unregister_for_machine(), S_OK);
    expect_same(machine_classes(), machine_before);
}

TEST_F(RegistrationTest, ForTheUserItWritesTheSameForTheUserAlone) {
    ASSERT_EQ(dll.install(true, L"user"), S_OK);
    RegistrySnapshot expected = with_registration(user_before, dll_path());
    // A user who never had a class has none of these keys yet.
    expected.insert({key_line(L""), key_line(L"CLSID"), key_line(L"Interface"), key_line(L"TypeLib")});
    expect_same(user_classes(), expected);
    expect_same(machine_classes(), machine_before);
}

TEST_F(RegistrationTest, ForTheUserNothingIsLeftBehind) {
    ASSERT_EQ(dll.install(true, L"USER"), S_OK);
    EXPECT_EQ(dll.install(false, L"user"), S_OK);
    expect_same(user_classes(), user_before);
}

TEST_F(RegistrationTest, InstallingWithoutAWordIsForTheMachine) {
    ASSERT_EQ(dll.install(true, nullptr), S_OK);
    EXPECT_TRUE(create_as_registered(HKEY_LOCAL_MACHINE, L"brxOpcDlgs6.ServerAdd"));
    expect_same(user_classes(), user_before);
    EXPECT_EQ(dll.install(false, L""), S_OK);
    expect_same(machine_classes(), machine_before);
}

TEST_F(RegistrationTest, AnUnknownWordIsRefused) {
    EXPECT_EQ(dll.install(true, L"everybody"), E_INVALIDARG);
    expect_same(machine_classes(), machine_before);
    expect_same(user_classes(), user_before);
}

TEST_F(RegistrationTest, TwiceIsAsGoodAsOnce) {
    ASSERT_EQ(dll.install(true, L"user"), S_OK);
    const RegistrySnapshot once = user_classes();
    EXPECT_EQ(dll.install(true, L"user"), S_OK);
    expect_same(user_classes(), once);
    EXPECT_EQ(dll.install(false, L"user"), S_OK);
    EXPECT_EQ(dll.install(false, L"user"), S_OK);
    expect_same(user_classes(), user_before);
}

TEST_F(RegistrationTest, WhatOthersAddedStays) {
    ASSERT_EQ(dll.install(true, L"user"), S_OK);
    {
        RegistryChange others(HKEY_CURRENT_USER);
        others.write({select_class + L"\\Category", L"Mark"}, L"mine");
        others.write({select_class + L"\\ProgID", L"Mark"}, L"mine");
        EXPECT_EQ(dll.install(false, L"user"), S_OK);
        EXPECT_EQ(registry_text(HKEY_CURRENT_USER, {select_class + L"\\Category", L"Mark"}), L"mine");
        EXPECT_EQ(registry_text(HKEY_CURRENT_USER, {select_class + L"\\ProgID", L"Mark"}), L"mine");
        EXPECT_EQ(registry_text(HKEY_CURRENT_USER, {select_class + L"\\ProgID", L""}), L"");
        EXPECT_EQ(registry_text(HKEY_CURRENT_USER, {select_class, L""}), L"");
    }
    EXPECT_EQ(dll.install(true, L"user"), S_OK);
    EXPECT_EQ(dll.install(false, L"user"), S_OK);
    expect_same(user_classes(), user_before);
}

TEST_F(RegistrationTest, OneThatFailsHalfWayLeavesNothing) {
    RegistryChange lasting(HKEY_CURRENT_USER);
    lasting.write({classes_path + L"\\brx.checks", L""}, L"the user has had classes");
    const UnwritableName obstacle;
    const RegistrySnapshot before = user_classes();

    EXPECT_EQ(dll.install(true, L"user"), HRESULT_FROM_WIN32(ERROR_CHILD_MUST_BE_VOLATILE));
    expect_same(user_classes(), before);
}

TEST_F(RegistrationTest, OneThatFailsHalfWayLeavesAnEarlierOne) {
    const DllCopy copy(L"brx earlier");
    Dll earlier(copy.path());
    ASSERT_EQ(earlier.install(true, L"user"), S_OK);
    RegDeleteTreeW(HKEY_CURRENT_USER, (classes_path + L"\\brxOpcDlgs6.ServerInformation").c_str());
    {
        const UnwritableName obstacle;
        const RegistrySnapshot before = user_classes();
        EXPECT_EQ(dll.install(true, L"user"), HRESULT_FROM_WIN32(ERROR_CHILD_MUST_BE_VOLATILE));
        expect_same(user_classes(), before);
    }
    EXPECT_EQ(earlier.install(false, L"user"), S_OK);
}

TEST_F(RegistrationTest, AnotherCopyRegisteredLaterKeepsItsRegistration) {
    const DllCopy copy(L"brx newer");
    Dll newer(copy.path());
    ASSERT_EQ(dll.install(true, L"user"), S_OK);
    ASSERT_EQ(newer.install(true, L"user"), S_OK);
    const RegistrySnapshot before = user_classes();
    EXPECT_EQ(dll.install(false, L"user"), S_OK);
    expect_same(user_classes(), before);
    EXPECT_EQ(newer.install(false, L"user"), S_OK);
    expect_same(user_classes(), user_before);
}

TEST_F(RegistrationTest, TheRegistrationOfACopyThatIsGoneIsRemoved) {
    {
        const DllCopy copy(L"brx gone");
        const Dll gone(copy.path());
        ASSERT_EQ(gone.install(true, L"user"), S_OK);
    }
    EXPECT_EQ(dll.install(false, L"user"), S_OK);
    expect_same(user_classes(), user_before);
}

TEST_F(RegistrationTest, NamesSharedWithTheComponentOfOtherBitsStayForIt) {
    ASSERT_EQ(dll.register_for_machine(), S_OK);
    const std::wstring server = select_class + L"\\InprocServer32";
    HKEY other = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, server.c_str(), 0, nullptr, 0,
                              KEY_ALL_ACCESS | view_of_other_bits, nullptr, &other, nullptr),
              ERROR_SUCCESS);
    const wchar_t path[] = L"C:\\other bits\\brxOpcDlgs6.dll";
    RegSetValueExW(other, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(path), sizeof path);
    RegCloseKey(other);
    // A system for programs of one kind has one view, and then the key was just the own one.
    const bool two_views = registry_text(HKEY_LOCAL_MACHINE, {server, L""}) != path;

    EXPECT_EQ(dll.unregister_for_machine(), S_OK);
    const auto stands = [](const std::wstring& key) {
        return !registry_text(HKEY_LOCAL_MACHINE, {key, L""}).empty();
    };
    EXPECT_EQ(stands(classes_path + L"\\brxOpcDlgs6.ServerSelect\\CLSID"), two_views);
    EXPECT_EQ(stands(classes_path + L"\\brxOpcDlgs6.ServerSelect.6\\CLSID"), two_views);
    EXPECT_EQ(stands(library_path + L"\\6.0"), two_views);
    EXPECT_FALSE(stands(select_class));
    EXPECT_FALSE(stands(library_path + L"\\6.0\\0\\" + platform));

    RegDeleteKeyExW(HKEY_LOCAL_MACHINE, server.c_str(), view_of_other_bits, 0);
    RegDeleteKeyExW(HKEY_LOCAL_MACHINE, select_class.c_str(), view_of_other_bits, 0);
    EXPECT_EQ(dll.unregister_for_machine(), S_OK);
}

TEST_F(RegistrationTest, HostsFindTheClassesByTheirNames) {
    ASSERT_EQ(dll.register_for_machine(), S_OK);
    for (const wchar_t* name : class_names) {
        CLSID clsid{};
        EXPECT_EQ(CLSIDFromProgID(name, &clsid), S_OK) << name;
        CLSID of_this_version{};
        EXPECT_EQ(CLSIDFromProgID((std::wstring(name) + L".6").c_str(), &of_this_version), S_OK) << name;
        EXPECT_EQ(of_this_version, clsid) << name;
        wchar_t* told = nullptr;
        EXPECT_EQ(ProgIDFromCLSID(clsid, &told), S_OK) << name;
        EXPECT_STREQ(told, name);
        CoTaskMemFree(told);
        com_ptr<IDispatch> object;
        EXPECT_EQ(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                   reinterpret_cast<void**>(object.out())),
                  S_OK);
    }
    ASSERT_EQ(dll.unregister_for_machine(), S_OK);
    CLSID clsid{};
    EXPECT_NE(CLSIDFromProgID(L"brxOpcDlgs6.ServerSelect", &clsid), S_OK);
    EXPECT_NE(CLSIDFromProgID(L"brxOpcDlgs6.ServerSelect.6", &clsid), S_OK);
}

TEST_F(RegistrationTest, HostsOfTheUserFindTheClassesByTheirNames) {
    ASSERT_EQ(dll.install(true, L"user"), S_OK);
    for (const wchar_t* name : class_names)
        EXPECT_TRUE(create_as_registered(HKEY_CURRENT_USER, name)) << name;
}

TEST_F(RegistrationTest, HostsMakeObjectsThroughTheRegisteredTypeLibrary) {
    ASSERT_EQ(dll.register_for_machine(), S_OK);
    com_ptr<ITypeLib> registered;
    ASSERT_EQ(LoadRegTypeLib(LIBID_brxOpcDlgs6, 6, 0, LOCALE_NEUTRAL, registered.out()), S_OK);
    com_ptr<ITypeInfo> info;
    ASSERT_EQ(registered->GetTypeInfoOfGuid(CLSID_ServerSelect, info.out()), S_OK);
    com_ptr<_ServerSelect> object;
    EXPECT_EQ(info->CreateInstance(nullptr, __uuidof(_ServerSelect), reinterpret_cast<void**>(object.out())),
              S_OK);
}

TEST_F(RegistrationTest, AFolderWithBlanksAndForeignLettersIsFine) {
    const DllCopy copy(L"brx M\u00FCll & K\u00F6ln \u65E5\u672C");
    const Dll there(copy.path());
    ASSERT_EQ(there.register_for_machine(), S_OK);
    com_ptr<IDispatch> object;
    EXPECT_EQ(CoCreateInstance(CLSID_ServerSelect, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                               reinterpret_cast<void**>(object.out())),
              S_OK);
    ASSERT_TRUE(object);
    EXPECT_FALSE(there.can_unload()) << "the object came from another file";
    com_ptr<ITypeInfo> info;
    EXPECT_EQ(object->GetTypeInfo(0, LOCALE_NEUTRAL, info.out()), S_OK);
    com_ptr<ITypeLib> registered;
    EXPECT_EQ(LoadRegTypeLib(LIBID_brxOpcDlgs6, 6, 0, LOCALE_NEUTRAL, registered.out()), S_OK);
    object = nullptr;
    EXPECT_EQ(there.unregister_for_machine(), S_OK);
    expect_same(machine_classes(), machine_before);
}

} // namespace brx::checks
