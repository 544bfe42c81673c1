// Counts what a program allocates with new.
#pragma once

// Allocations since the program's start.
long allocationCount();
