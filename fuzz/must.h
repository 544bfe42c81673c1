// The fuzzers' check: a claim that does not hold ends the run, and libFuzzer keeps the input that did it.
#pragma once

inline void must(bool holds) {
    if (!holds) __builtin_trap();
}
