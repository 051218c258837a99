#pragma once

#include "tour/program.h"

#include <functional>
#include <string>

namespace tour {

/// Tells each step on the terminal and has a picture taken of how it came out.
class Guide {
public:
    explicit Guide(std::wstring picture_folder) : folder_(std::move(picture_folder)) {}

    /// The program that the steps from now on are in; it must live as long.
    void go_to(const Program& program) { program_ = &program; }

    /// One step: what is told, what is done, and what must have come of it (see wait_until). The picture,
    /// NN-`picture`.png, shows the window in front and what it lies over.
    void step(const std::string& telling, const std::string& picture, const std::function<void()>& doing,
              const std::wstring& outcome, const std::function<bool()>& come_out, int answers = 300);

    int steps() const { return steps_; }
    /// NN-`name`.png, beside the steps' own.
    void take_picture(const std::string& name);

private:
    const Program* program_ = nullptr;
    std::wstring folder_;
    int steps_ = 0;
};

} // namespace tour
