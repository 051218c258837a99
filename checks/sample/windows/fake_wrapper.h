#pragma once

#include <string>
#include <vector>

namespace brx::checks {

/// An OPC automation wrapper installed for the user while it lives: connects to anything but servers called
/// "Broken", and keeps a diary.
class FakeWrapper {
public:
    FakeWrapper();
    FakeWrapper(const FakeWrapper&) = delete;
    FakeWrapper& operator=(const FakeWrapper&) = delete;
    ~FakeWrapper();

    /// "connect SERVER on NODE", "disconnect SERVER".
    static std::vector<std::string> diary;

private:
    unsigned long registered_ = 0;
};

} // namespace brx::checks
