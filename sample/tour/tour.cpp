// A person works through every dialog in the sample host. The exit status is 0 only if every step came out.

#include "tour/visit.h"

#include <cstdio>
#include <functional>

namespace tour {

namespace {

std::wstring folder_of_this_program() {
    wchar_t path[MAX_PATH]{};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring whole = path;
    return whole.substr(0, whole.find_last_of(L'\\'));
}

/// One visit to the host, from its start to its end.
void visit_host(const std::wstring& command_line, Guide& guide, const std::function<void(Visit&)>& work) {
    const Program program(command_line);
    Visit visit(program, guide);
    try {
        work(visit);
        visit.leaving();
    } catch (const Disappointment&) {
        guide.take_picture("failed");
        throw;
    }
}

void work_through(const std::wstring& command_line, Guide& guide) {
    visit_host(command_line, guide, [](Visit& visit) {
        visit.selecting();
        visit.adding();
        visit.browsing();
        visit.browsing_other_servers();
        visit.configurations();
        visit.running();
        visit.editing_a_test();
        visit.configuring();
        visit.configuring_in_vain();
    });
    visit_host(command_line, guide, [](Visit& visit) {
        visit.finding_the_test_again();
        visit.finding_the_configuration_again();
        visit.watching();
    });
}

int run(const std::wstring& pictures) {
    const std::wstring database = pictures + L"\\tour.db";
    DeleteFileW(database.c_str());
    // The mouse would point at whatever opens below it.
    SetCursorPos(0, 0);
    Guide guide(pictures);
    try {
        work_through(L"\"" + folder_of_this_program() + L"\\..\\window\\brxSampleHost.exe\" --plant \"" +
                         database + L"\"",
                     guide);
        std::printf("%d steps, all as they should be\n", guide.steps());
        return 0;
    } catch (const Disappointment& disappointment) {
        std::printf("error: step %d did not come out: %ls\n", guide.steps(), disappointment.what.c_str());
        return 1;
    }
}

} // namespace

} // namespace tour

int wmain(int count, wchar_t** arguments) {
    if (count != 2) {
        std::printf("brxSampleTour FOLDER\n");
        return 2;
    }
    return tour::run(arguments[1]);
}
