// What showing address spaces takes, compared with the least that it can take. Closes with one line "N
// passed, N failed, N skipped", a figure that could be measured counting as passed, whatever it is.
//
//   brx_bench                     prints the table
//   brx_bench --bytes floor|dialog N
//                                 prints the private bytes that N leaves take; a process of its own each
//                                 time, for what was freed before would be taken again

#include "bench/floor.h"
#include "bench/item_browser.h"
#include "bench/series.h"

#include "com/module.h"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>

namespace {

using namespace brx::bench;

using Open = Opening (*)(const AddressSpace&);

/// Runs of the floor and the dialog, one right after the other, and both with next to nothing to show.
class Comparison {
public:
    Comparison(Open floor, const AddressSpace& space, const AddressSpace& least, int rounds = 7) {
        for (int round = 0; round < rounds; ++round) {
            least_floor_.add(floor(least).shown);
            least_dialog_.add(open_item_browser(least).shown);
            note(floor(space), floor_shown_, floor_expanded_);
            note(open_item_browser(space), dialog_shown_, dialog_expanded_);
        }
    }

    /// Without what it takes to open the window.
    Series floor_shown() const { return floor_shown_.over(least_floor_); }
    Series dialog_shown() const { return dialog_shown_.over(least_dialog_); }
    const Series& floor_expanded() const { return floor_expanded_; }
    const Series& dialog_expanded() const { return dialog_expanded_; }

private:
    static void note(const Opening& opening, Series& shown, Series& expanded) {
        shown.add(opening.shown);
        expanded.add(opening.expanded);
    }

    Series least_floor_, least_dialog_;
    Series floor_shown_, dialog_shown_;
    Series floor_expanded_, dialog_expanded_;
};

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

int print_table() {
    Table table;
    print_heading();
    table.measure(3, [] {
        const Comparison small(open_list, flat_space(100'000), flat_space(1), 15);
        print_line("100,000 leaves shown", small.floor_shown(), small.dialog_shown(), 1.25);
        const Comparison large(open_list, flat_space(1'000'000), flat_space(1));
        print_line("1,000,000 leaves shown", large.floor_shown(), large.dialog_shown(), 1.25);
        print_line("1,000,000 leaves after 100,000", small.dialog_shown(), large.dialog_shown(), 11);
    });
    table.measure(2, [] {
        const AddressSpace least = {.branches = 1, .sub_branches = 1};
        const Comparison root(open_tree, {.branches = 50'000, .sub_branches = 1}, least);
        print_line("50,000 branches shown at the root", root.floor_shown(), root.dialog_shown(), 1.25);
        const Comparison branch(open_tree, {.branches = 1, .sub_branches = 10'000}, least);
        print_line("a branch of 10,000 expanded", branch.floor_expanded(), branch.dialog_expanded(), 1.25);
    });
    table.measure(
        1, [] { print_line("memory for a leaf", bytes_per_leaf(L"floor"), bytes_per_leaf(L"dialog"), 1.5); });
    return table.close();
}

} // namespace

int main(int argc, char** argv) {
    OleInitialize(nullptr);
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    int status = EXIT_FAILURE;
    try {
        if (arguments.empty()) {
            status = print_table();
        } else if (arguments.size() == 3 && arguments[0] == "--bytes") {
            const Open open = arguments[1] == "floor" ? open_list : open_item_browser;
            std::printf("%zu\n", bytes_of(open, std::stoi(arguments[2])));
            status = EXIT_SUCCESS;
        } else {
            std::fprintf(stderr, "brx_bench [--bytes floor|dialog N]\n");
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "brx_bench: %s\n", error.what());
    }
    OleUninitialize();
    return status;
}
