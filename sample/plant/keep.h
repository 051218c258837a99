#pragma once

#include <memory>
#include <utility>

namespace brx {

/// A reference to a part that also keeps the whole alive, while the whole alone owns the part: references run
/// down only and nothing leaks in a circle, yet whoever holds a part may ask for its parent.
template <class Part, class Whole>
std::shared_ptr<Part> keep_with(std::shared_ptr<Whole> whole, std::shared_ptr<Part> part) {
    if (!part) return nullptr;
    using Both = std::pair<std::shared_ptr<Whole>, std::shared_ptr<Part>>;
    const auto both = std::make_shared<Both>(std::move(whole), std::move(part));
    return std::shared_ptr<Part>(both, both->second.get());
}

} // namespace brx
