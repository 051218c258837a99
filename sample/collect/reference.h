#pragma once

#include <string>

namespace brx::collect {

/// The item that a descriptor's text refers to as "(%" item ")"; "" for a text that is no reference.
std::string referred_item(const std::string& text);

} // namespace brx::collect
