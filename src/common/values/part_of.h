#pragma once

#include <string>
#include <string_view>

namespace brx {

/// A text that is sought in many others, without regard to case.
class PartOf {
public:
    explicit PartOf(std::string_view part);

    /// Every text has the empty part.
    bool is_in(std::string_view text) const;

private:
    std::string capitals_;
};

} // namespace brx
