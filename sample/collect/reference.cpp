#include "collect/reference.h"

namespace brx::collect {

std::string referred_item(const std::string& text) {
    const std::size_t begin = text.find("(%");
    const std::size_t end = text.rfind(')');
    if (begin == std::string::npos || end == std::string::npos || end < begin) return {};
    return text.substr(begin + 2, end - begin - 2);
}

} // namespace brx::collect
