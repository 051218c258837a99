#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace brx {

/// The lines of a list: texts with a 32-bit number each, at positions from 0 that must be there. A list can
/// have a million of them, so they are packed: a line takes its text and some six bytes, its number only when
/// that or a later one is not 0.
class ListLines {
public:
    int count() const { return static_cast<int>(places_.size()); }
    /// Holds until the lines are cleared, whatever is inserted meanwhile.
    std::string_view text(int index) const;
    std::int32_t data(int index) const;

    /// Quick at the end only.
    void insert(int index, std::string_view text, std::int32_t data);
    void clear() noexcept { *this = ListLines(); }

private:
    /// The chunk in the upper half, where in it in the lower half.
    using Place = std::uint32_t;

    Place pack(std::string_view text);
    /// Finds room for so many bytes that lie together.
    Place take(std::size_t size);
    char* at(Place place) const { return chunks_[place >> 16].get() + (place & 0xFFFF); }

    std::vector<Place> places_;      ///< where the length of each text lies, its characters behind it
    std::vector<std::int32_t> data_; ///< up to the last that is not 0, at least
    std::vector<std::unique_ptr<char[]>> chunks_;
    std::size_t chunk_size_ = 256; ///< of the last chunk
    std::size_t used_ = 256;       ///< in the last chunk
};

} // namespace brx
