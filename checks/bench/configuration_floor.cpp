#include "bench/configuration_floor.h"

#include "bench/address_space.h"
#include "bench/plain_window.h"

#include <commctrl.h>

#include <OPCAutomation.h>

#include <array>
#include <string>
#include <vector>

namespace brx::bench {

namespace {

/// Calls a member that gives an object.
template <class Result, class Object, class... Raws, class... Values>
com_ptr<Result> object_of(Object& object, HRESULT (STDMETHODCALLTYPE Object::*member)(Raws...),
                          const Values&... values) {
    com_ptr<Result> result;
    (object.*member)(values..., result.out());
    return result;
}

template <class Object> void read_text(Object& object, HRESULT (STDMETHODCALLTYPE Object::*member)(BSTR*)) {
    BSTR text = nullptr;
    (object.*member)(&text);
    SysFreeString(text);
}

template <class Number, class Object>
Number read_number(Object& object, HRESULT (STDMETHODCALLTYPE Object::*member)(Number*)) {
    Number value{};
    (object.*member)(&value);
    return value;
}

com_ptr<_hlxOPCServer> entry_of(_hlxOPCConfiguration& configuration) {
    const auto holder = object_of<_hlxOPCServerHolder>(configuration, &_hlxOPCConfiguration::get_Server);
    return object_of<_hlxOPCServer>(*holder.get(), &_hlxOPCServerHolder::get_ServerEntry);
}

/// What the dialog shows besides its lists.
void read_fields(_hlxOPCConfiguration& configuration) {
    const auto entry = entry_of(configuration);
    read_text(*entry.get(), &_hlxOPCServer::get_Node);
    read_text(*entry.get(), &_hlxOPCServer::get_ServerName);
    read_text(configuration, &_hlxOPCConfiguration::get_Name);
    read_number(configuration, &_hlxOPCConfiguration::get_SubgroupSize);
    read_number(configuration, &_hlxOPCConfiguration::get_UpdateRate);
    read_number(configuration, &_hlxOPCConfiguration::get_DeadBand);
    read_number(configuration, &_hlxOPCConfiguration::get_Active);
    read_number(configuration, &_hlxOPCConfiguration::get_SyncDateTime);
    read_number(configuration, &_hlxOPCConfiguration::get_SubgroupTimeUnit);
    read_number(configuration, &_hlxOPCConfiguration::get_PieceTimeUnit);
    read_number(configuration, &_hlxOPCConfiguration::get_SubgroupInterval);
    read_number(configuration, &_hlxOPCConfiguration::get_PieceInterval);
    read_number(configuration, &_hlxOPCConfiguration::get_SubgroupTriggerType);
    read_text(configuration, &_hlxOPCConfiguration::get_SubgroupTriggerItem);
    read_number(configuration, &_hlxOPCConfiguration::get_PieceTriggerType);
    read_text(configuration, &_hlxOPCConfiguration::get_PieceTriggerItem);
}

int read_descriptors(_hlxOPCConfiguration& configuration) {
    const auto descriptors =
        object_of<_hlxOPCDescriptors>(configuration, &_hlxOPCConfiguration::get_Descriptors);
    const auto elements =
        object_of<IUnknown>(*descriptors.get(), &_hlxOPCDescriptors::get__NewEnum).as<IEnumVARIANT>();
    int count = 0;
    for (VARIANT element{}; elements->Next(1, &element, nullptr) == S_OK; ++count) {
        const auto descriptor = com_ptr<IDispatch>::adopt(V_DISPATCH(&element)).as<_hlxOPCDescriptor>();
        read_number(*descriptor.get(), &_hlxOPCDescriptor::get_Type);
        read_text(*descriptor.get(), &_hlxOPCDescriptor::get_GroupName);
        read_text(*descriptor.get(), &_hlxOPCDescriptor::get_ItemName);
    }
    return count;
}

int read_tests(_hlxOPCConfiguration& configuration) {
    const auto tests = object_of<_hlxOPCTests>(configuration, &_hlxOPCConfiguration::get_Tests);
    const LONG count = read_number(*tests.get(), &_hlxOPCTests::get_Count);
    for (LONG i = 1; i <= count; ++i) {
        const auto test = object_of<_hlxOPCTest>(*tests.get(), &_hlxOPCTests::get_Item, number(i));
        read_text(*test.get(), &_hlxOPCTest::get_CharacteristicName);
        read_text(*test.get(), &_hlxOPCTest::get_OPCItemID);
        const auto owner = object_of<_hlxOPCTests>(*test.get(), &_hlxOPCTest::get_Parent);
        const auto its = object_of<_hlxOPCConfiguration>(*owner.get(), &_hlxOPCTests::get_Parent);
        const auto entry = entry_of(*its.get());
        read_text(*entry.get(), &_hlxOPCServer::get_ServerName);
        read_text(*entry.get(), &_hlxOPCServer::get_Node);
        read_number(*test.get(), &_hlxOPCTest::get_State);
    }
    return static_cast<int>(count);
}

/// A table in report style.
class PlainTable {
public:
    explicit PlainTable(int columns) : columns_(columns) {
        LVCOLUMNW column{};
        column.mask = LVCF_WIDTH | LVCF_SUBITEM;
        column.cx = 120;
        for (; column.iSubItem < columns; ++column.iSubItem)
            window_.send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(column.iSubItem),
                         reinterpret_cast<LPARAM>(&column));
    }

    /// Each row has a text of its own in every column. Room for all of them is asked for at once.
    void fill(int rows) const {
        Names names = Names::of_leaves();
        LVITEMW cell{};
        cell.mask = LVIF_TEXT;
        window_.send(WM_SETREDRAW, FALSE);
        window_.send(LVM_SETITEMCOUNT, static_cast<WPARAM>(rows));
        for (cell.iItem = 0; cell.iItem < rows; ++cell.iItem) {
            cell.pszText = const_cast<wchar_t*>(names.of(cell.iItem + 1).c_str());
            cell.iSubItem = 0;
            window_.send(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&cell));
            for (cell.iSubItem = 1; cell.iSubItem < columns_; ++cell.iSubItem)
                window_.send(LVM_SETITEMTEXTW, static_cast<WPARAM>(cell.iItem),
                             reinterpret_cast<LPARAM>(&cell));
        }
        window_.send(WM_SETREDRAW, TRUE);
    }
    void show() const { window_.show(); }

private:
    int columns_;
    PlainWindow window_{WC_LISTVIEWW, LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER};
};

} // namespace

Opening list_configuration(const Holdings& holdings) {
    Opening result;
    const auto configuration = make_configuration(holdings);
    const Cost start = spent();
    const PlainTable descriptors(3); // stays behind another tab
    const PlainTable tests(4);
    read_fields(*configuration.get());
    descriptors.fill(read_descriptors(*configuration.get()));
    tests.fill(read_tests(*configuration.get()));
    tests.show();
    result.shown = spent() - start;
    result.bytes = private_bytes();
    return result;
}

void read_status(_hlxOPCConfiguration& configuration) {
    const auto entry = entry_of(configuration);
    const auto connection =
        object_of<IDispatch>(*entry.get(), &_hlxOPCServer::get_OPCServer).as<IOPCAutoServer>();
    IOPCAutoServer& server = *connection.get();
    read_text(server, &IOPCAutoServer::get_ServerNode);
    read_text(server, &IOPCAutoServer::get_ServerName);
    read_number(server, &IOPCAutoServer::get_StartTime);
    read_number(server, &IOPCAutoServer::get_CurrentTime);
    read_number(server, &IOPCAutoServer::get_LastUpdateTime);
    read_number(server, &IOPCAutoServer::get_Bandwidth);
    read_number(server, &IOPCAutoServer::get_BuildNumber);
    read_text(server, &IOPCAutoServer::get_ClientName);
    read_number(server, &IOPCAutoServer::get_MajorVersion);
    read_number(server, &IOPCAutoServer::get_MinorVersion);
    read_number(server, &IOPCAutoServer::get_ServerState);
    read_text(server, &IOPCAutoServer::get_VendorInfo);
    const auto groups = object_of<IOPCGroups>(server, &IOPCAutoServer::get_OPCGroups);
    const LONG count = read_number(*groups.get(), &IOPCGroups::get_Count);
    for (LONG i = 1; i <= count; ++i)
        read_text(*object_of<IOPCGroup>(*groups.get(), &IOPCGroups::Item, number(i)).get(),
                  &IOPCGroup::get_Name);
}

} // namespace brx::bench
