// SPDX-License-Identifier: MIT
#pragma once

namespace orrerix {

// Gives back to the system what this process has freed but still holds. To be called after work
// that needed much memory for a moment; takes some milliseconds.
void ReturnFreedMemory();

// From now on each large piece of memory, such as a picture of a screen, goes back as soon as it is
// freed, whichever thread has asked for it. To be called once, when the program starts.
void KeepLargeMemoryApart();

}  // namespace orrerix
