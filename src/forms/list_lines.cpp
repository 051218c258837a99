#include "forms/list_lines.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace brx {

namespace {

constexpr std::size_t largest_chunk = 0x10000; ///< where more than one text lies
constexpr std::size_t most_chunks = 0x10000;

/// A length below this is one byte; otherwise this byte stands before the whole length.
constexpr std::size_t long_text = 0xFF;

/// For one element more, so that inserting it cannot fail.
template <class T> void make_room(std::vector<T>& elements) {
    if (elements.size() == elements.capacity())
        elements.reserve(std::max<std::size_t>(8, 2 * elements.capacity()));
}

} // namespace

std::string_view ListLines::text(int index) const {
    const char* packed = at(places_[static_cast<std::size_t>(index)]);
    std::size_t length = static_cast<unsigned char>(*packed++);
    if (length == long_text) {
        std::memcpy(&length, packed, sizeof length);
        packed += sizeof length;
    }
    return {packed, length};
}

std::int32_t ListLines::data(int index) const {
    const auto position = static_cast<std::size_t>(index);
    return position < data_.size() ? data_[position] : 0;
}

void ListLines::insert(int index, std::string_view text, std::int32_t data) {
    const auto position = static_cast<std::size_t>(index);
    const Place place = pack(text);
    make_room(places_);
    if (data != 0 && data_.size() < position) data_.resize(position);
    if (data != 0 || position < data_.size()) {
        make_room(data_);
        data_.insert(data_.begin() + index, data);
    }
    places_.insert(places_.begin() + index, place);
}

ListLines::Place ListLines::pack(std::string_view text) {
    const std::size_t length = text.size();
    const bool is_long = length >= long_text;
    const Place place = take(1 + (is_long ? sizeof length : 0) + length);
    char* packed = at(place);
    *packed++ = static_cast<char>(is_long ? long_text : length);
    if (is_long) {
        std::memcpy(packed, &length, sizeof length);
        packed += sizeof length;
    }
    if (length) std::memcpy(packed, text.data(), length);
    return place;
}

ListLines::Place ListLines::take(std::size_t size) {
    if (size > chunk_size_ - used_) {
        if (chunks_.size() == most_chunks) throw std::bad_alloc();
        const std::size_t wanted = std::max(size, std::min(2 * chunk_size_, largest_chunk));
        chunks_.push_back(std::make_unique_for_overwrite<char[]>(wanted));
        chunk_size_ = wanted;
        used_ = 0;
    }
    const std::size_t place = (chunks_.size() - 1) << 16 | used_;
    used_ += size;
    return static_cast<Place>(place);
}

} // namespace brx
