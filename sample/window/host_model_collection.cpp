#include "window/host_model.h"

// The collection of the configurations that run.

namespace sample {

namespace {

constexpr LONG numbers_for_each = 3; ///< value, subgroup, mean

std::vector<ChartPoint> points_in(SAFEARRAY* array) {
    std::vector<ChartPoint> points;
    LONG last = -1;
    void* data = nullptr;
    check(SafeArrayGetUBound(array, 1, &last));
    check(SafeArrayAccessData(array, &data));
    const auto* const numbers = static_cast<const double*>(data);
    for (LONG i = 0; i + numbers_for_each <= last + 1; i += numbers_for_each)
        points.push_back({numbers[i], static_cast<long>(numbers[i + 1]), numbers[i + 2]});
    SafeArrayUnaccessData(array);
    return points;
}

} // namespace

bool HostModel::is_running(long position, long number) const {
    VARIANT_BOOL running = VARIANT_FALSE;
    check(host_->get_Running(position, number, &running));
    return running != VARIANT_FALSE;
}

void HostModel::run(long position, long number, bool running) {
    check(host_->put_Running(position, number, running ? VARIANT_TRUE : VARIANT_FALSE));
    log((running ? L"Run: " : L"Stop: ") + configuration_name(position, number) + L".");
}

void HostModel::collect() { check(host_->Collect()); }

void HostModel::hold_configuration(long position, long number) {
    check(host_->HoldConfiguration(position, number));
}

ChartContent HostModel::collected(long position, long number, long test) const {
    Text text;
    VARIANT values{};
    long complete = 0;
    check(host_->get_CollectionText(position, number, test, text.out()));
    check(host_->get_SubgroupCount(position, number, test, &complete));
    check(host_->get_CollectedValues(position, number, test, &values));
    ChartContent content{text.text(), {}, complete};
    content.points = points_in(V_ARRAY(&values));
    VariantClear(&values);
    return content;
}

} // namespace sample
