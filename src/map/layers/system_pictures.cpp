// SPDX-License-Identifier: MIT
#include "map/layers/system_pictures.h"

#include "db/values/number_text.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr std::array<std::string_view, kSystemPictures> kTags = {
    "7, 4",  "7, 2",  "9, 2",  "8, 6",  "11,11", "7, 5",  "1,13",  "2, 5",  "3, 6",  "3,12",
    "5,12",  "13,14", "12,10", "10,10", " 9,10", "2,11",  " 7,08", "7,12",  "8, 0",  "10, 1",
    "10,11", " 9,07", " 9,09", " 6,09", " 7,07", "11,12", "6, 6",  "2,09",  "8,13",  "10,14",
    "5,14",  "11,06", "12,06", "11,04", "2, 7",  "4, 1",  " 8,09", "15,09", "15,00", " 5,09",
    "0,10",  "7, 3",  "8, 4",  "6, 4",  " 5,10", " 4,10", "15,12"};

}  // namespace

std::string_view SystemPictureTag(int picture) {
  return kTags[static_cast<std::size_t>(picture)];
}

MapCell CellOfTag(std::string_view tag) {
  return {static_cast<int>(Val(tag.substr(0, tag.find(',')))) + 1,
          static_cast<int>(Val(Right(tag, 2))) + 2};
}

}  // namespace orrerix
