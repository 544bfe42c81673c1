// The text of a label of the chart, stored in the object itself, so that casting allocates no memory.
#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

class Caption {
  public:
    constexpr Caption() = default;

    // At most 15 characters.
    constexpr Caption(std::string_view text) : size_(static_cast<std::uint8_t>(text.size())) {
        assert(text.size() <= characters_.size());
        for (std::size_t i = 0; i < text.size(); ++i) characters_[i] = text[i];
    }
    constexpr Caption(const char* text) : Caption(std::string_view{text}) {}

    constexpr std::string_view text() const { return {characters_.data(), size_}; }
    constexpr bool empty() const { return size_ == 0; }
    friend constexpr bool operator==(const Caption&, const Caption&) = default;

  private:
    std::array<char, 15> characters_{};
    std::uint8_t size_ = 0;
};

// The upper text, CR LF and the lower text. A std::string of 15 characters allocates no memory either.
inline Caption stacked(const Caption& upper, const Caption& lower) {
    const std::string both = std::string{upper.text()}.append("\r\n").append(lower.text());
    return std::string_view{both};
}
