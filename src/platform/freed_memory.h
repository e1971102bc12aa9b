// SPDX-License-Identifier: MIT
#pragma once

namespace orrerix {

// Gives back to the system what this process has freed but still holds. To be called after work
// that needed much memory for a moment; takes some milliseconds.
void ReturnFreedMemory();

}  // namespace orrerix
