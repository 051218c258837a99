// What large address spaces and configurations take, compared with the least that they can take. Closes with
// one line "N passed, N failed, N skipped", a figure that could be measured counting as passed, whatever it
// is.
//
//   brx_bench                     prints the table
//   brx_bench items|configuration prints the lines about one dialog
//   brx_bench --bytes floor|dialog N
//                                 prints the private bytes that N leaves take; a process of its own each
//                                 time, for what was freed before would be taken again

#include "bench/comparison.h"
#include "bench/configuration_dialog.h"
#include "bench/configuration_floor.h"
#include "bench/floor.h"
#include "bench/item_browser.h"

#include "com/module.h"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>

namespace {

using namespace brx::bench;

using Open = Opening (*)(const AddressSpace&);

constexpr AddressSpace flat_space(int leaves) { return {.flat = true, .leaves = leaves}; }

std::size_t bytes_of(Open open, int leaves) {
    const std::size_t before = open(flat_space(1)).bytes;
    return open(flat_space(leaves)).bytes - before;
}

/// Bytes for each leaf, as another process of this program tells.
double bytes_per_leaf(const std::wstring& whose) {
    constexpr int leaves = 1'000'000;
    const std::wstring command = brx::module_path() + L" --bytes " + whose + L" " + std::to_wstring(leaves);
    FILE* answer = _wpopen(command.c_str(), L"r");
    double bytes = 0;
    if (!answer || std::fscanf(answer, "%lf", &bytes) != 1 || bytes <= 0)
        throw std::runtime_error("no memory was measured");
    _pclose(answer);
    return bytes / leaves;
}

class Table {
public:
    /// One subject; each of its figures counts, also when it could not be measured.
    void measure(int figures, const std::function<void()>& subject) {
        try {
            subject();
            passed_ += figures;
        } catch (const std::exception& error) {
            std::printf("FAILED: %s\n", error.what());
            failed_ += figures;
        }
    }
    int close() const {
        std::printf("%d passed, %d failed, 0 skipped\n", passed_, failed_);
        return failed_ == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
    }

private:
    int passed_ = 0;
    int failed_ = 0;
};

void measure_items(Table& table) {
    table.measure(3, [] {
        const Comparison small(open_list, open_item_browser, flat_space(100'000), flat_space(1), 15);
        print_line("100,000 leaves shown", small.floor_shown(), small.dialog_shown(), 1.25);
        const Comparison large(open_list, open_item_browser, flat_space(1'000'000), flat_space(1));
        print_line("1,000,000 leaves shown", large.floor_shown(), large.dialog_shown(), 1.25);
        print_line("1,000,000 leaves after 100,000", small.dialog_shown(), large.dialog_shown(), 11);
    });
    table.measure(2, [] {
        const AddressSpace least = {.branches = 1, .sub_branches = 1};
        const Comparison root(open_tree, open_item_browser, {.branches = 50'000, .sub_branches = 1}, least);
        print_line("50,000 branches shown at the root", root.floor_shown(), root.dialog_shown(), 1.25);
        const Comparison branch(open_tree, open_item_browser, {.branches = 1, .sub_branches = 10'000}, least);
        print_line("a branch of 10,000 expanded", branch.floor_expanded(), branch.dialog_expanded(), 1.25);
    });
    table.measure(
        1, [] { print_line("memory for a leaf", bytes_per_leaf(L"floor"), bytes_per_leaf(L"dialog"), 1.5); });
}

void measure_configuration(Table& table) {
    const auto load = [](const char* what, const Holdings& holdings) {
        const Comparison loads(list_configuration, open_configuration, holdings, Holdings{}, 15);
        print_line(what, loads.floor_shown(), loads.dialog_shown(), 1.25);
    };
    table.measure(1, [&] { load("10,000 tests loaded", {.tests = 10'000}); });
    table.measure(1, [&] { load("10,000 descriptors loaded", {.descriptors = 10'000}); });
    const auto tick = [](const char* what, const Holdings& holdings) {
        const Ticks ticks = tick_configuration(holdings, 25, 100);
        print_line(what, ticks.reads, ticks.ticks, 1.25);
        if (ticks.messages > 0 || ticks.painted)
            throw std::runtime_error("unchanged ticks sent " + std::to_string(ticks.messages) +
                                     " messages to their table" +
                                     (ticks.painted ? " and had something drawn again" : ""));
    };
    table.measure(1, [&] { tick("100 unchanged ticks of 1,000 groups", {.groups = 1'000}); });
    table.measure(
        1, [&] { tick("the same, groups made when asked for", {.groups = 1'000, .fresh_groups = true}); });
}

int print_table(const std::string& subject) {
    Table table;
    print_heading();
    if (subject != "configuration") measure_items(table);
    if (subject != "items") measure_configuration(table);
    return table.close();
}

} // namespace

int main(int argc, char** argv) {
    OleInitialize(nullptr);
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    int status = EXIT_FAILURE;
    try {
        if (arguments.empty()) {
            status = print_table({});
        } else if (arguments.size() == 1 && (arguments[0] == "items" || arguments[0] == "configuration")) {
            status = print_table(arguments[0]);
        } else if (arguments.size() == 3 && arguments[0] == "--bytes") {
            const Open open = arguments[1] == "floor" ? open_list : open_item_browser;
            std::printf("%zu\n", bytes_of(open, std::stoi(arguments[2])));
            status = EXIT_SUCCESS;
        } else {
            std::fprintf(stderr, "brx_bench [items|configuration|--bytes floor|dialog N]\n");
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "brx_bench: %s\n", error.what());
    }
    OleUninitialize();
    return status;
}
