// What large address spaces and configurations take, compared with the least that they can take. Closes with
// one line "N passed, N failed, N skipped", a figure that could be measured counting as passed, whatever it
// is.
//
//   brx_bench                     prints the table
//   brx_bench items|finding|configuration|openings
//                                 prints the lines about one dialog, or about opening each of them
//   brx_bench --open NAME         opens a dialog once, for a profiler
//   brx_bench --bytes N           prints the private bytes that N leaves take in the dialog; a process of its
//                                 own, for what was freed before would be taken again

#include "bench/comparison.h"
#include "bench/configuration_dialog.h"
#include "bench/configuration_floor.h"
#include "bench/find_line.h"
#include "bench/floor.h"
#include "bench/item_browser.h"
#include "bench/openings.h"
#include "bench/walk.h"

#include "win32/module.h"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>

namespace {

using namespace brx::bench;

constexpr AddressSpace flat_space(int leaves) { return {.flat = true, .leaves = leaves}; }

std::size_t bytes_of(int leaves) {
    const std::size_t before = open_item_browser(flat_space(1)).bytes;
    return open_item_browser(flat_space(leaves)).bytes - before;
}

/// Bytes for each leaf, as another process of this program tells.
double bytes_per_leaf() {
    constexpr int leaves = 1'000'000;
    const std::wstring command = brx::module_path() + L" --bytes " + std::to_wstring(leaves);
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
        const Comparison small(read_list, open_item_browser, flat_space(100'000), flat_space(1), 15);
        print_line("100,000 leaves shown", small.floor_shown(), small.dialog_shown(), 3);
        const Comparison large(read_list, open_item_browser, flat_space(1'000'000), flat_space(1));
        print_line("1,000,000 leaves shown", large.floor_shown(), large.dialog_shown(), 3);
        print_line("1,000,000 leaves after 100,000", small.dialog_shown(), large.dialog_shown(), 11);
    });
    table.measure(2, [] {
        const AddressSpace least = {.branches = 1, .sub_branches = 1};
        const Comparison root(open_tree, open_item_browser, {.branches = 50'000, .sub_branches = 1}, least);
        print_line("50,000 branches shown at the root", root.floor_shown(), root.dialog_shown(), 1.1);
        const Comparison branch(open_tree, open_item_browser, {.branches = 1, .sub_branches = 10'000}, least);
        print_line("a branch of 10,000 expanded", branch.floor_expanded(), branch.dialog_expanded(), 1.1);
    });
    table.measure(1, [] {
        constexpr double text_and_place = Names::length_of_leaf * sizeof(wchar_t) + 8;
        print_line("memory for a leaf", text_and_place, bytes_per_leaf(), 1);
    });
}

/// In the line in which an item is found.
void measure_finding(Table& table) {
    table.measure(1, [] {
        const Answers answers = find_leaves(1'000'000, 15);
        print_line("a key among 1,000,000 leaves", answers.passes, answers.keys, 1.25);
    });
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

/// From `Show` to the window that waits for input.
void measure_openings(Table& table) {
    for (const std::string& name : dialogs())
        table.measure(1, [&] {
            const Template made = template_of(name);
            Series bare;
            Series shown;
            for (int round = 0; round < 15; ++round) {
                bare.add(open_template(made).shown);
                shown.add(open_dialog(name).shown);
            }
            print_line((name + " opened").c_str(), bare, shown, 1.2);
        });
}

const std::map<std::string, void (*)(Table&)> subjects = {{"items", measure_items},
                                                          {"finding", measure_finding},
                                                          {"configuration", measure_configuration},
                                                          {"openings", measure_openings}};

/// Of one subject, or of all.
int print_table(const std::string& wanted) {
    Table table;
    print_heading();
    for (const auto& [subject, measure] : subjects)
        if (wanted.empty() || wanted == subject) measure(table);
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
        } else if (arguments.size() == 1 && subjects.contains(arguments[0])) {
            status = print_table(arguments[0]);
        } else if (arguments.size() == 2 && arguments[0] == "--open") {
            std::printf("%.1f ms\n", open_dialog(arguments[1]).shown.elapsed);
            status = EXIT_SUCCESS;
        } else if (arguments.size() == 2 && arguments[0] == "--bytes") {
            std::printf("%zu\n", bytes_of(std::stoi(arguments[1])));
            status = EXIT_SUCCESS;
        } else {
            std::fprintf(stderr, "brx_bench [items|finding|configuration|openings|--open NAME|--bytes N]\n");
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "brx_bench: %s\n", error.what());
    }
    OleUninitialize();
    return status;
}
