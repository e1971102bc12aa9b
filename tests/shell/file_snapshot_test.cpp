// SPDX-License-Identifier: MIT
#include "shell/file_snapshot.h"

#include <gmock/gmock.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Snapshots : public ::testing::Test {
 protected:
  FileSnapshot Take() const { return FileSnapshot({folder.Path() / "data"}, except); }

  TempFolder folder;
  std::vector<fs::path> except;
};

TEST_F(Snapshots, TellFilesThatCameWentAndGrew) {
  const fs::path grown = folder.Write("data/grown.ini", "x");
  const fs::path gone = folder.Write("data/deep/gone.ini", "x");
  folder.Write("data/same.ini", "x");
  const FileSnapshot before = Take();
  folder.Write("data/grown.ini", "xy");
  fs::remove(gone);
  const fs::path come = folder.Write("data/new/come.ini", "x");

  EXPECT_THAT(Take().ChangedSince(before), ElementsAre(gone, grown, come));
  EXPECT_THAT(Take().ChangedSince(Take()), IsEmpty());
}

TEST_F(Snapshots, TellFilesThatWereWrittenWithTheSameSize) {
  const fs::path file = folder.Write("data/a.ini", "x");
  const FileSnapshot before = Take();
  folder.Write("data/a.ini", "y");
  fs::last_write_time(file, fs::last_write_time(file) + std::chrono::seconds(2));

  EXPECT_THAT(Take().ChangedSince(before), ElementsAre(file));
}

TEST_F(Snapshots, LeaveOutTheProgramsOwnFiles) {
  except = {folder.Path() / "data/u.fl"};
  folder.Write("data/a.ini", "x");
  const FileSnapshot before = Take();
  for (const char* own : {"data/u.fl", "data/u.fl-journal", "data/u.fl.import/Orrerix.fl"}) {
    folder.Write(own, "x");
  }
  const fs::path elsewhere = folder.Write("data/deep/u.fl", "x");

  EXPECT_THAT(Take().ChangedSince(before), ElementsAre(elsewhere));
}

TEST_F(Snapshots, OfAFolderThatIsMissingAreEmpty) {
  EXPECT_THAT(Take().ChangedSince({}), IsEmpty());
}

}  // namespace
}  // namespace orrerix
