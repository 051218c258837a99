// A person works through every dialog in the sample host. The exit status is 0 only if every step came out.

#include "tour/visit.h"

#include <cstdio>

namespace tour {

namespace {

std::wstring folder_of_this_program() {
    wchar_t path[MAX_PATH]{};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring whole = path;
    return whole.substr(0, whole.find_last_of(L'\\'));
}

void work_through(const Program& program, Guide& guide) {
    Visit visit(program, guide);
    visit.selecting();
    visit.adding();
    visit.browsing();
    visit.browsing_other_servers();
    visit.watching();
}

int run(const std::wstring& pictures) {
    const std::wstring database = pictures + L"\\tour.db";
    DeleteFileW(database.c_str());
    // The mouse would point at whatever opens below it.
    SetCursorPos(0, 0);
    int steps = 0;
    try {
        const Program program(L"\"" + folder_of_this_program() +
                              L"\\..\\window\\brxSampleHost.exe\" --plant \"" + database + L"\"");
        Guide guide(program, pictures);
        try {
            work_through(program, guide);
        } catch (const Disappointment&) {
            steps = guide.steps();
            guide.take_picture("failed");
            throw;
        }
        std::printf("%d steps, all as they should be\n", guide.steps());
        return 0;
    } catch (const Disappointment& disappointment) {
        std::printf("error: step %d did not come out: %ls\n", steps, disappointment.what.c_str());
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
