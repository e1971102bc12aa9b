// SPDX-License-Identifier: MIT
#pragma once

namespace orrerix {

// Clears the upper halves of the processor's vector registers. As long as a library leaves
// something there (painting does, and so does the start of a window), other code waits for them: an
// import takes a third longer. To be called before long work in a window's thread, and after each
// time that the window was painted meanwhile. Costs next to nothing, and is nothing on processors
// without such registers.
void ClearWideRegisters();

}  // namespace orrerix
