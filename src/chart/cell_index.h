// The index of a palace cell on the square, 0..11, from the branch "Yin" to the branch "Chou". Its only
// arithmetic is the step round the square.
#pragma once

#include <array>
#include <cstddef>

inline constexpr int cellCount = 12;

class CellIndex {
  public:
    constexpr CellIndex() = default;

    // Any number of steps round the square from "Yin"; negative ones go backwards.
    explicit constexpr CellIndex(int stepsFromYin)
        : value_((stepsFromYin % cellCount + cellCount) % cellCount) {}

    constexpr int value() const { return value_; }
    constexpr std::size_t index() const { return static_cast<std::size_t>(value_); }

    friend constexpr CellIndex operator+(CellIndex cell, int steps) { return CellIndex{cell.value_ + steps}; }
    friend constexpr CellIndex operator-(CellIndex cell, int steps) { return CellIndex{cell.value_ - steps}; }
    friend constexpr bool operator==(CellIndex, CellIndex) = default;

  private:
    int value_ = 0;
};

static_assert(CellIndex{0} - 1 == CellIndex{11} && CellIndex{11} + 1 == CellIndex{0});

inline constexpr std::array<CellIndex, cellCount> allCells{
    CellIndex{0}, CellIndex{1}, CellIndex{2}, CellIndex{3}, CellIndex{4},  CellIndex{5},
    CellIndex{6}, CellIndex{7}, CellIndex{8}, CellIndex{9}, CellIndex{10}, CellIndex{11}};
