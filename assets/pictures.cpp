// SPDX-License-Identifier: MIT
// The library consists of resources only; an archive needs one object file all the same.
