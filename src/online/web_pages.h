// SPDX-License-Identifier: MIT
// The pages that the program links to: on the host that the news comes from.
#pragma once

#include <string>
#include <string_view>

#include "platform/links.h"

namespace orrerix {

enum class WebPage { Main, FirstClan, GameServer, WarningHelp };

// Address of a page on the host of the news address; empty if there is no news address: then the
// program's own documentation is opened in its place.
std::string PageAddress(std::string_view newsAddress, WebPage page);

// Opens a link if it may be opened. An empty one opens the manual, any other nothing.
void OpenLink(LinkOpener& links, std::string_view address);

// Whether an address belongs to the web: http and https ones do.
bool IsWebAddress(std::string_view address);

// Whether the desktop may be asked to open an address: web addresses and those of mail (mailto).
// What else a news file names could start any program.
bool IsOpenable(std::string_view address);

// Which half of the logo a point lies in, in a picture of this size: the logo is cut in two by the
// diagonal from its top left corner. True for the lower left half.
bool IsFirstHalf(double x, double y, double width, double height);

}  // namespace orrerix
