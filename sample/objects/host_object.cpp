#include "objects/host_object.h"

#include "collect/telling.h"
#include "com/com_object.h"
#include "com/dual.h"
#include "com/system_locale.h"
#include "com/wire.h"
#include "common/trap.h"
#include "common/values/convert.h"
#include "common/values/text.h"
#include "host/host.h"
#include "objects/database_object.h"
#include "objects/site.h"
#include "objects/wrapper_source.h"

#include <shlobj.h>

#include <array>
#include <filesystem>

#include "brxSample.h"

namespace brx::host {

namespace {

constexpr const char* source_setting = "source";
constexpr const char* wrapper_value = "wrapper";

/// Beside the other data that programs keep for the user.
std::string default_file() {
    std::array<wchar_t, MAX_PATH> folder{};
    check(SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder.data()));
    return to_utf8((std::filesystem::path(folder.data()) / "brxSample" / "host.db").u16string());
}

Date local_time() {
    SYSTEMTIME now{};
    Date time;
    GetLocalTime(&now);
    SystemTimeToVariantTime(&now, &time.days);
    time.days += now.wMilliseconds / 86'400'000.0;
    return time;
}

/// Three doubles for each.
VARIANT points_of(const collect::Series& series) {
    const auto& points = series.points();
    SAFEARRAY* const array = SafeArrayCreateVector(VT_R8, 0, static_cast<ULONG>(3 * points.size()));
    void* data = nullptr;
    if (!array || FAILED(SafeArrayAccessData(array, &data))) check(E_OUTOFMEMORY);
    auto* next = static_cast<double*>(data);
    for (const collect::Point& point : points) {
        const collect::Subgroup* around = series.subgroup(point.subgroup);
        *next++ = point.value;
        *next++ = point.subgroup;
        *next++ = around ? around->mean() : point.value;
    }
    SafeArrayUnaccessData(array);
    VARIANT result{};
    V_VT(&result) = VT_ARRAY | VT_R8;
    V_ARRAY(&result) = array;
    return result;
}

class HostObject final : public Dual<_Host> {
public:
    STDMETHODIMP get_DatabaseFile(BSTR* result) override {
        return give(result, [&] { return file_.empty() ? default_file() : file_; });
    }
    STDMETHODIMP put_DatabaseFile(BSTR value) override {
        return run([&] {
            const std::string name = text_of(value);
            const std::filesystem::path path(wide(name));
            file_ = name.empty() ? name : to_utf8(std::filesystem::absolute(path).u16string());
            host_ = nullptr;
        });
    }
    STDMETHODIMP get_Servers(IDispatch** result) override {
        return give(result, [&] { return ObjectPtr(servers()); });
    }
    STDMETHODIMP get_Server(BSTR name, IDispatch** result) override {
        return give(result, [&] { return server_called(text_of(name)); });
    }
    STDMETHODIMP get_Application(IDispatch** result) override {
        return give(result, [&] { return ObjectPtr(open()); });
    }
    STDMETHODIMP get_StateText(LONG position, BSTR* result) override {
        return give(result, [&] { return servers()->at(position).state_text(); });
    }
    STDMETHODIMP Connect(LONG position, VARIANT_BOOL* result) override {
        return give(result, [&] { return servers()->connect(position); });
    }
    STDMETHODIMP Remove(LONG position) override {
        return run([&] { servers()->remove(position); });
    }
    STDMETHODIMP get_Source(OpcServerSource* result) override {
        if (!result) return E_POINTER;
        return run([&] {
            static_cast<void>(open());
            *result = site().source == site().wrapper ? AutomationWrapper : SimulatedPlant;
        });
    }
    STDMETHODIMP put_Source(OpcServerSource value) override {
        return run([&] { use(value == AutomationWrapper); });
    }
    STDMETHODIMP get_WrapperInstalled(VARIANT_BOOL* result) override {
        return give(result, [] { return WrapperSource::is_installed(); });
    }
    STDMETHODIMP Log(BSTR text) override {
        return run([&] { site().log.add(text_of(text)); });
    }
    STDMETHODIMP get_LogCount(LONG* result) override {
        return give(result, [] { return static_cast<std::int32_t>(site().log.count()); });
    }
    STDMETHODIMP get_LogLine(LONG number, BSTR* result) override {
        return give(result, [&] {
            return number < 1 ? std::string() : site().log.line(static_cast<std::size_t>(number));
        });
    }
    STDMETHODIMP get_LastItem(LONG position, BSTR* result) override {
        return give(result, [&] { return servers()->at(position).last_item(); });
    }
    STDMETHODIMP put_LastItem(LONG position, BSTR value) override {
        return run([&] { servers()->set_last_item(position, text_of(value)); });
    }

    STDMETHODIMP get_ConfigurationCount(LONG position, LONG* result) override {
        return give(result, [&] { return configurations(position).count(); });
    }
    STDMETHODIMP get_Configuration(LONG position, LONG number, IDispatch** result) override {
        return give(result, [&] { return ObjectPtr(configurations(position).at(number)); });
    }
    STDMETHODIMP AddConfiguration(LONG position, IDispatch** result) override {
        return give(result, [&] { return ObjectPtr(configurations(position).add()); });
    }
    STDMETHODIMP RemoveConfiguration(LONG position, LONG number) override {
        return run([&] { configurations(position).remove(number); });
    }
    STDMETHODIMP SettleConfiguration(LONG position, LONG number, VARIANT_BOOL* result) override {
        return give(result, [&] { return configurations(position).settle(number); });
    }
    STDMETHODIMP get_ItemValue(LONG position, LONG number, BSTR item, BSTR* result) override {
        return give(result, [&] { return value_text(position, number, text_of(item)); });
    }

    STDMETHODIMP get_Running(LONG position, LONG number, VARIANT_BOOL* result) override {
        return give(result, [&] { return collection(position, number)->is_running(); });
    }
    STDMETHODIMP put_Running(LONG position, LONG number, VARIANT_BOOL value) override {
        return run([&] {
            if (value != VARIANT_FALSE)
                collection(position, number)->run();
            else
                collection(position, number)->stop();
        });
    }
    STDMETHODIMP Collect() override {
        return run([&] { servers()->collect(local_time()); });
    }
    STDMETHODIMP HoldConfiguration(LONG position, LONG number) override {
        return run([&] { configurations(position).at(number)->hold(); });
    }
    STDMETHODIMP get_CollectionText(LONG position, LONG number, LONG test, BSTR* result) override {
        return give(result, [&] { return collection(position, number)->text(test, system_locale()); });
    }
    STDMETHODIMP get_CollectedValues(LONG position, LONG number, LONG test, VARIANT* result) override {
        if (!result) return E_POINTER;
        VariantInit(result);
        return run([&] { *result = points_of(collection(position, number)->series(test)); });
    }
    STDMETHODIMP get_SubgroupCount(LONG position, LONG number, LONG test, LONG* result) override {
        return give(result, [&] { return collection(position, number)->series(test).complete_subgroups(); });
    }

    STDMETHODIMP get_KeptSettings(LONG position, LONG number, SettingsKept* result) override {
        if (!result) return E_POINTER;
        return run([&] {
            const Kept kept = configurations(position).at(number)->kept();
            *result = kept == Kept::all ? AllSettings : kept == Kept::some ? SomeSettings : NoSettings;
        });
    }
    STDMETHODIMP get_TriggerText(LONG position, LONG number, LONG test, BSTR* result) override {
        return give(result,
                    [&] { return collection(position, number)->trigger_text(test, system_locale()); });
    }
    STDMETHODIMP get_ItemTrouble(LONG position, LONG number, BSTR item, BSTR* result) override {
        return give(result, [&] {
            const std::string id = text_of(item);
            return id.empty() ? id : configurations(position).at(number)->reading_of(id).trouble;
        });
    }
    STDMETHODIMP get_StoredSubgroupCount(LONG position, LONG number, LONG test, LONG* result) override {
        return give(result, [&] { return collection(position, number)->stored_subgroups(test); });
    }
    STDMETHODIMP get_ErrorText(BSTR* result) override {
        return give(result, [] { return site().errors.last(seconds()); });
    }

private:
    template <class Body> static HRESULT run(Body&& body) noexcept { return guard(__uuidof(_Host), body); }
    template <class Raw, class Body> static HRESULT give(Raw* result, Body&& body) noexcept {
        if (!result) return E_POINTER;
        *result = Raw{};
        return run([&] { *result = Wire<std::remove_cvref_t<decltype(body())>>::own(body()).detach(); });
    }

    const std::shared_ptr<Host>& open() {
        if (host_) return host_;
        Site& shared = site();
        auto opened = Host::open(file_.empty() ? default_file() : file_, shared.plant, shared.log);
        opened->show_database_as(shown_to_dialogs);
        shared.source = shared.plant;
        if (opened->settings().get(source_setting) == wrapper_value) {
            if (WrapperSource::is_installed())
                shared.source = shared.wrapper;
            else
                shared.log.add(
                    "No OPC automation wrapper is installed any more: the simulated plant is used.");
        }
        opened->servers()->set_source(shared.source);
        host_ = std::move(opened);
        return host_;
    }

    std::shared_ptr<Servers> servers() { return open()->servers(); }

    Configurations& configurations(std::int32_t position) { return servers()->at(position).configurations(); }

    /// It lives as long as its configuration.
    std::shared_ptr<Collection> collection(std::int32_t position, std::int32_t number) {
        const auto configuration = configurations(position).at(number);
        return {configuration, &configuration->collection()};
    }

    std::string value_text(std::int32_t position, std::int32_t number, const std::string& item_id) {
        const auto configuration = configurations(position).at(number);
        const auto value = configuration->reading_of(item_id).value;
        std::string text;
        attempt([&] {
            if (value) text = to_text(collect::as_shown(*value), system_locale());
        });
        return text;
    }

    ObjectPtr server_called(const std::string& name) {
        const auto all = servers();
        const std::int32_t position = all->find(name);
        if (position == 0)
            throw Error(error::element_not_found, "No configured server is called " + name + ".");
        if (!all->at(position).OPCServer() && !all->connect(position))
            throw failed_call(name + ": " + all->at(position).state_text());
        return all->at(position).OPCServer();
    }

    void use(bool wrapper) {
        if (wrapper && !WrapperSource::is_installed())
            throw failed_call(
                "No OPC automation wrapper (OPC.Automation) is installed for programs of these bits.");
        Site& shared = site();
        const auto opened = open();
        const auto& wanted = wrapper ? shared.wrapper : shared.plant;
        if (shared.source == wanted) return;
        opened->settings().set(source_setting, wrapper ? wrapper_value : "");
        shared.source = wanted;
        shared.log.add(wrapper ? "OPC servers come from the automation wrapper."
                               : "OPC servers are simulated.");
        opened->servers()->set_source(wanted);
    }

    static Error failed_call(const std::string& description) {
        return {static_cast<std::int32_t>(E_FAIL), description, "brxSample"};
    }

    std::string file_; ///< "" for the default
    std::shared_ptr<Host> host_;
};

} // namespace

com_ptr<IDispatch> new_host_object() { return make_com<HostObject>(); }

} // namespace brx::host
