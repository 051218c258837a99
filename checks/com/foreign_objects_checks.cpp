#include "adapters/to_com.h"
#include "com/adapters/from_com.h"
#include "com/bstr.h"
#include "com/describe.h"
#include "com/failure.h"
#include "com/host_doubles.h"
#include "com/opc_doubles.h"
#include "com/owned_variant.h"
#include "com/round_trip.h"
#include "com/safe_array.h"
#include "com/shy.h"
#include "com/type_info.h"
#include "win32/counted.h"

#include <brxModel.h>
#include <gmock/gmock.h>

// Objects that somebody else wrote, with the peculiarities of real ones, and what is to be said about
// identity.

namespace brx::checks {

namespace {

using testing::ElementsAre;

class ShyItem final : public Shy<brxModel::OPCItem, ::OPCItem> {
public:
    STDMETHODIMP get_ItemID(BSTR*) override { return S_OK; } // and forgets to write
    STDMETHODIMP get_IsActive(VARIANT_BOOL* result) override {
        *result = 1;
        return S_OK;
    }
    STDMETHODIMP put_IsActive(VARIANT_BOOL value) override {
        return value == VARIANT_TRUE ? S_OK : E_INVALIDARG;
    }
    STDMETHODIMP get_CanonicalDataType(SHORT*) override { return static_cast<HRESULT>(0xC0040007); }
};

/// Looks at every argument as closely as the common wrapper does.
class StrictItems final : public Shy<brxModel::OPCItems, ::OPCItems> {
public:
    std::vector<std::string> misfits;
    std::vector<std::string> specifiers;

    STDMETHODIMP get_Count(LONG* result) override { return *result = 1, S_OK; }
    STDMETHODIMP Item(VARIANT specifier, ::OPCItem** result) override {
        specifiers.push_back(describe(value_of(specifier)));
        *result = make_com<ShyItem>().detach();
        return S_OK;
    }
    STDMETHODIMP AddItems(LONG count, SAFEARRAY** ids, SAFEARRAY** clients, SAFEARRAY** handles,
                          SAFEARRAY** errors, VARIANT types, VARIANT paths) override {
        look("ids", *ids, VT_BSTR, count);
        look("clients", *clients, VT_I4, count);
        look("types", types, VT_I2, count);
        look("paths", paths, VT_BSTR, count);
        if (*handles || *errors) misfits.emplace_back("results not cleared");
        *handles = OwnedSafeArray(LongArray{{41}, 1}).detach();
        *errors = OwnedSafeArray(LongArray{{0}, 1}).detach();
        return S_OK;
    }
    STDMETHODIMP Remove(LONG count, SAFEARRAY** handles, SAFEARRAY** errors) override {
        look("handles", *handles, VT_I4, count);
        *errors = OwnedSafeArray(ShortArray{{0}, 1}).detach(); // not the promised type
        return S_OK;
    }
    STDMETHODIMP Validate(LONG count, SAFEARRAY** ids, SAFEARRAY** errors, VARIANT types,
                          VARIANT paths) override {
        look("ids", *ids, VT_BSTR, count);
        look("types", types, VT_I2, count);
        look("paths", paths, VT_BSTR, count);
        if (*errors) misfits.emplace_back("errors not cleared");
        return S_FALSE; // and hands out no array
    }

private:
    void look(const std::string& name, const VARIANT& array, VARTYPE type, LONG count) {
        if (V_VT(&array) == VT_ERROR && V_ERROR(&array) == DISP_E_PARAMNOTFOUND) return;
        if (V_VT(&array) != (VT_ARRAY | type)) return misfits.push_back(name + " has another type");
        look(name, V_ARRAY(&array), type, count);
    }
    void look(const std::string& name, SAFEARRAY* array, VARTYPE type, LONG count) {
        LONG first = 0;
        LONG last = 0;
        if (!is_vector_of(array, type)) return misfits.push_back(name + " has another element type");
        SafeArrayGetLBound(array, 1, &first);
        SafeArrayGetUBound(array, 1, &last);
        if (first != 1 || last != count) misfits.push_back(name + " has other bounds");
    }
};

/// An item collection that gives `items`.
class ForeignGroup final : public Shy<brxModel::IOPCGroup, ::IOPCGroup> {
public:
    com_ptr<::OPCItems> items;
    STDMETHODIMP get_Parent(IOPCAutoServer** result) override { return *result = nullptr, S_OK; }
    STDMETHODIMP get_Name(BSTR* result) override { return *result = nullptr, S_OK; }
    STDMETHODIMP get_OPCItems(::OPCItems** result) override {
        return *result = com_ptr(items).detach(), S_OK;
    }
};

TEST_F(AdapterTest, UseObjectsThatDenyBeingDispatchInterfaces) {
    const auto group = make_com<ForeignGroup>();
    group->items = make_com<StrictItems>();
    const auto items = from_com<OPCGroup>(group)->OPCItems();
    const auto item = items->Item(std::int32_t{1});
    EXPECT_TRUE(dispatch_of(item));
    EXPECT_EQ(resolve<OPCItem>(ObjectPtr(item)), item);
}

TEST_F(AdapterTest, ReadAResultThatWasNeverWrittenAsEmpty) {
    const auto item = from_com<OPCItem>(make_com<ShyItem>());
    EXPECT_EQ(item->ItemID(), "");
    const auto group = from_com<OPCGroup>(make_com<ForeignGroup>());
    EXPECT_EQ(group->Name(), "");
    EXPECT_EQ(group->Parent(), nullptr);
    EXPECT_EQ(group->OPCItems(), nullptr);
}

TEST_F(AdapterTest, SpeakAutomationBooleans) {
    const auto item = from_com<OPCItem>(make_com<ShyItem>());
    EXPECT_TRUE(item->IsActive());
    EXPECT_NO_THROW(item->set_IsActive(true));
    EXPECT_THROW(item->set_IsActive(false), Error);
}

TEST_F(AdapterTest, TellAnOpcErrorWithoutErrorInformation) {
    const auto item = from_com<OPCItem>(make_com<ShyItem>());
    EXPECT_EQ(outcome([&] { return Variant(item->CanonicalDataType()); }),
              "error -1073479673 | Application-defined or object-defined error | brxOpcDlgs6");
}

TEST_F(AdapterTest, PassArraysExactlyAsOpcAutomationWantsThem) {
    const auto strict = make_com<StrictItems>();
    const auto items = from_com<OPCItems>(strict);
    const StringArray ids{{"Line.Speed"}, 1};
    const AddedItems added = items->AddItems(ids, {{7}, 1}, ShortArray{{0}, 1}, StringArray{{""}, 1});
    EXPECT_EQ(added.ServerHandles, (LongArray{{41}, 1}));
    items->AddItems(ids, {{7}, 1}, std::nullopt, std::nullopt);
    EXPECT_EQ(outcome([&] {
                  return items->Validate(ids, ShortArray{{0}, 1}, StringArray{{""}, 1});
              }),
              describe(Error(error::type_mismatch)));
    EXPECT_EQ(outcome([&] { return items->Remove({{41}, 1}); }), describe(Error(error::type_mismatch)));
    EXPECT_THAT(strict->misfits, ElementsAre());
    items->Item(std::int32_t{1});
    items->Item(std::string("Line.Speed"));
    EXPECT_THAT(strict->specifiers, ElementsAre("long 1", "text Line.Speed"));
}

TEST_F(AdapterTest, FindOutWhatAnObjectIs) {
    const auto group = make<OPCGroup>();
    group->answers["Name"] = std::string("Line 3");
    const ObjectPtr object = from_dispatch(dispatch_of(group));
    EXPECT_EQ(resolve<OPCGroup>(object)->Name(), "Line 3");
    EXPECT_EQ(outcome([&] { return ObjectPtr(resolve<OPCServer>(object)); }),
              describe(Error(error::type_mismatch)));
    EXPECT_EQ(outcome([&] { return ObjectPtr(resolve<hlxOPCServers>(object)); }),
              describe(Error(error::type_mismatch)));
    EXPECT_EQ(resolve<OPCGroup>(ObjectPtr(resolve<OPCGroup>(object)))->Name(), "Line 3");
    EXPECT_EQ(from_dispatch(nullptr), nullptr);
    EXPECT_EQ(dispatch_of(nullptr).get(), nullptr);
    EXPECT_EQ(from_com<OPCGroup>(nullptr), nullptr);
    EXPECT_EQ(to_com<OPCGroup>(nullptr).get(), nullptr);
}

TEST_F(AdapterTest, GiveAHostItsOwnObjectsBack) {
    const auto original = to_com<OPCGroup>(make<OPCGroup>());
    EXPECT_EQ(dispatch_of(from_dispatch(original)).get(), original.get());
    EXPECT_EQ(to_com<OPCGroup>(from_com<OPCGroup>(original)).get(), original.get());
    const OwnedVariant value(Variant(ObjectPtr(from_com<OPCGroup>(original))));
    EXPECT_EQ(V_DISPATCH(&value.get()), original.get());
}

TEST_F(AdapterTest, GoThroughComAlsoWithOurOwnObjects) {
    const auto group = make<OPCGroup>();
    EXPECT_NE(from_com<OPCGroup>(to_com<OPCGroup>(group)), std::static_pointer_cast<OPCGroup>(group));
    EXPECT_NE(from_dispatch(dispatch_of(group)), ObjectPtr(group));
}

TEST_F(AdapterTest, PassAnObjectThatIsNothingInParticular) {
    const auto plain = std::make_shared<Object>();
    const auto dispatch = dispatch_of(plain);
    ASSERT_TRUE(dispatch);
    EXPECT_EQ(outcome([&] { return invoke(dispatch.get(), "Count", DISPATCH_PROPERTYGET, {}); }),
              describe(error_of(DISP_E_UNKNOWNNAME)));
    EXPECT_EQ(describe(from_dispatch(dispatch)), "an object of no known interface");
}

TEST_F(AdapterTest, RefuseANullPlaceForAResult) {
    const auto servers = to_com<hlxOPCServers>(make<hlxOPCServers>());
    EXPECT_EQ(servers->get_Count(nullptr), E_POINTER);
    EXPECT_EQ(servers->get_LastError(nullptr), E_POINTER);
    EXPECT_EQ(servers->QueryInterface(__uuidof(IUnknown), nullptr), E_POINTER);
}

TEST_F(AdapterTest, ClearTheResultsOfAFailedCall) {
    const auto servers = make<hlxOPCServers>();
    servers->failure = Error(5);
    _hlxOPCServer* result = reinterpret_cast<_hlxOPCServer*>(1);
    const VARIANT index{};
    EXPECT_EQ(to_com<hlxOPCServers>(servers)->get_Item(index, &result), static_cast<HRESULT>(0x800A0005));
    EXPECT_EQ(result, nullptr);
    SetErrorInfo(0, nullptr);
}

TEST_F(AdapterTest, KnowTheInterfacesOfAnObject) {
    const auto servers = to_com<hlxOPCServers>(make<hlxOPCServers>());
    const com_ptr<IUnknown> identity = servers.as<IUnknown>();
    EXPECT_EQ(servers.as<IDispatch>().as<IUnknown>().get(), identity.get());
    EXPECT_EQ(servers.as<ISupportErrorInfo>().as<IUnknown>().get(), identity.get());
    EXPECT_EQ(servers.as<ISupportErrorInfo>().as<_hlxOPCServers>().get(), servers.get());
    EXPECT_FALSE(servers.as<_hlxOPCServer>());
    const auto support = servers.as<ISupportErrorInfo>();
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(_hlxOPCServers)), S_OK);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(_hlxOPCServer)), S_FALSE);
}

TEST_F(AdapterTest, OpenTheTypeLibrariesOnceAndCloseThem) {
    auto libraries = TypeLibraries::open();
    EXPECT_EQ(TypeLibraries::open(), libraries);
    const std::weak_ptr<const TypeLibraries> watched = libraries;
    libraries = nullptr;
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(outcome([] { return type_info_of(__uuidof(IClassFactory)), Variant(); }),
              describe(error_of(TYPE_E_ELEMENTNOTFOUND)));
}

TEST_F(AdapterTest, DescribeAnObjectThroughItsTypeLibrary) {
    const auto servers = to_com<hlxOPCServers>(make<hlxOPCServers>());
    UINT count = 0;
    EXPECT_EQ(servers->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 1u);
    com_ptr<ITypeInfo> info;
    ASSERT_EQ(servers->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.out()), S_OK);
    Bstr name;
    info->GetDocumentation(MEMBERID_NIL, name.out(), nullptr, nullptr, nullptr);
    EXPECT_EQ(name.text(), "_hlxOPCServers");
    EXPECT_EQ(servers->GetTypeInfo(1, LOCALE_USER_DEFAULT, info.out()), DISP_E_BADINDEX);
    EXPECT_EQ(outcome([&] { return invoke(servers.get(), "Nonsense", DISPATCH_METHOD, {}); }),
              describe(error_of(DISP_E_UNKNOWNNAME)));
}

} // namespace

} // namespace brx::checks
