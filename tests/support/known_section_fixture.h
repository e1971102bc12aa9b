// SPDX-License-Identifier: MIT
// The reader on a few blocks of the kinds that have tables of their own.
#pragma once

#include <string_view>

#include <gmock/gmock.h>

#include "support/reader_fixture.h"

namespace orrerix {

class KnownSection : public ReaderFixture {
 protected:
  // The only row of a table.
  Row TheRow(std::string_view table) {
    const auto rows = Rows(table);
    EXPECT_THAT(rows, ::testing::SizeIs(1)) << table;
    return rows.empty() ? Row() : rows.front();
  }
};

}  // namespace orrerix
