// SPDX-License-Identifier: MIT
#include "forms/workbench/differences_page.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QSplitter>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <set>

#include <fmt/format.h>

#include "db/engine/engine.h"
#include "db/values/text.h"
#include "forms/controls/captions.h"
#include "forms/controls/plain_label.h"
#include "forms/workbench/background_import.h"
#include "forms/workbench/throw_failures.h"
#include "platform/path_text.h"
#include "shell/startup.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;

std::vector<StoredTable> ReadUniverse(const fs::path& file) {
  ThrowFailures sink;
  return ReadAllTables(sink, DBEngine::OpenDatabase(sink, file));
}

// The columns in which a row names its system.
bool NamesSystem(const std::string& table, const std::string& column) {
  const std::string folded = FoldAscii(column);
  return folded == "sys_nick" || folded == "sysnick" || folded == "system" ||
         (FoldAscii(table) == "systems" && folded == "nickname");
}

void AddSystems(const TableDiff& table, const std::vector<Value>& row,
                std::set<std::string>& systems) {
  for (std::size_t i = 0; i < table.Columns.size(); ++i) {
    if (NamesSystem(table.Name, table.Columns[i])) systems.insert(FoldAscii(row[i].Text()));
  }
}

std::set<std::string> ChangedSystems(const UniverseDiff& diff) {
  std::set<std::string> systems;
  for (const TableDiff& table : diff.Tables) {
    for (const auto& row : table.Added) AddSystems(table, row, systems);
    for (const auto& row : table.Removed) AddSystems(table, row, systems);
    for (const ChangedRow& row : table.Changed) AddSystems(table, row.New, systems);
  }
  return systems;
}

// The cells of systems in the map of a universe.
std::vector<MapCell> CellsOf(const std::set<std::string>& systems,
                             const std::vector<StoredTable>& universe) {
  std::vector<MapCell> cells;
  for (const StoredTable& table : universe) {
    const auto nickname = table.Definition.Find("nickname");
    const auto pos = table.Definition.Find("pos");
    if (FoldAscii(table.Definition.Name) != "systems" || !nickname || !pos) continue;
    for (std::size_t i = 0; i < table.RowCount(); ++i) {
      const auto row = table.Row(i);
      if (!systems.contains(FoldAscii(row[*nickname].Text()))) continue;
      const std::string cell = row[*pos].Text();
      const std::size_t comma = cell.find(',');
      if (comma == std::string::npos) continue;
      cells.push_back({static_cast<int>(Value(cell.substr(0, comma)).Number()),
                       static_cast<int>(Value(cell.substr(comma + 1)).Number())});
    }
  }
  return cells;
}

std::string NameOfSide(const fs::path& path) {
  return TextOf((path.has_filename() ? path : path.parent_path()).filename());
}

}  // namespace

DifferencesPage::DifferencesPage(WorkbenchHost& host, const LanguageChoice& choice,
                                 AppVersion version)
    : WorkbenchPage(TextId::DifferencesPage), host_(host), choice_(choice), version_(version) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(MakeChoice());
  state_ = new PlainLabel(this);
  state_->setObjectName("State");
  layout->addWidget(state_);
  auto* split = new QSplitter(this);
  tables_ = new QListWidget(split);
  tables_->setObjectName("ChangedTables");
  tables_->setAccessibleName(Caption(TextId::DifferencesPage));
  report_ = new QTextBrowser(split);
  report_->setObjectName("Report");
  split->setStretchFactor(0, 1);
  split->setStretchFactor(1, 4);
  layout->addWidget(split, 1);
  layout->addWidget(MakeButtons());
  connect(tables_, &QListWidget::currentRowChanged, this, [this](int row) { ShowTable(row); });
}

DifferencesPage::~DifferencesPage() = default;

QString DifferencesPage::Caption(TextId id) const {
  return CaptionIn(choice_.Current, id);
}

QWidget* DifferencesPage::MakeChoice() {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  old_ = new QLineEdit(bar);
  old_->setObjectName("OldUniverse");
  old_->setPlaceholderText(Caption(TextId::OldUniverse));
  old_->setAccessibleName(Caption(TextId::OldUniverse));
  auto* file = new QPushButton(Caption(TextId::ChooseFile), bar);
  auto* folder = new QPushButton(Caption(TextId::ChooseFolder), bar);
  auto* compare = new QPushButton(Caption(TextId::CompareNow), bar);
  compare->setObjectName("Compare");
  cancel_ = new QPushButton(Caption(TextId::ButtonCancel), bar);
  cancel_->setObjectName("Cancel");
  cancel_->setEnabled(false);
  row->addWidget(old_, 1);
  for (QPushButton* button : {file, folder, compare, cancel_}) row->addWidget(button);
  connect(file, &QPushButton::clicked, this, [this] {
    const QString name = QFileDialog::getOpenFileName(this, Caption(TextId::OldUniverse));
    if (!name.isEmpty()) old_->setText(name);
  });
  connect(folder, &QPushButton::clicked, this, [this] {
    const QString name = QFileDialog::getExistingDirectory(this, Caption(TextId::OldUniverse));
    if (!name.isEmpty()) old_->setText(name);
  });
  connect(compare, &QPushButton::clicked, this, [this] { Start(); });
  connect(old_, &QLineEdit::returnPressed, this, [this] { Start(); });
  connect(cancel_, &QPushButton::clicked, this, [this] {
    task_.Cancel();
    cancel_->setEnabled(false);
    state_->clear();
  });
  return bar;
}

QWidget* DifferencesPage::MakeButtons() {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  auto* mark = new QPushButton(Caption(TextId::MarkSystems), bar);
  mark->setObjectName("MarkSystems");
  mark->setCheckable(true);
  auto* copy = new QPushButton(Caption(TextId::CopyMarkdown), bar);
  copy->setObjectName("CopyMarkdown");
  auto* save = new QPushButton(Caption(TextId::Export), bar);
  for (QPushButton* button : {mark, copy, save}) row->addWidget(button);
  row->addStretch(1);
  connect(mark, &QPushButton::toggled, this, [this](bool on) {
    host_.MarkCells(on ? comparison_.ChangedCells : std::vector<MapCell>());
  });
  connect(copy, &QPushButton::clicked, this, [this] {
    QApplication::clipboard()->setText(
        QString::fromStdString(MarkdownReport(ReportOf(tables_->currentRow()))));
  });
  connect(save, &QPushButton::clicked, this, [this] { Save(); });
  return bar;
}

DifferencesPage::Comparison DifferencesPage::Compare(
    const std::string& old, const fs::path& now, AppVersion version,
    const BackgroundTask::IsCancelled& isCancelled) {
  Comparison comparison;
  comparison.Old = NameOfSide(PathOf(old));
  try {
    const QTemporaryDir work;
    fs::path file = PathOf(old);
    if (fs::is_directory(file)) {
      file = UniverseFileIn(PathOf(work.path().toStdString()));
      const ImportOutcome outcome =
          BackgroundImport::Run({old, file, JetVersionOption::Version30, version}, isCancelled);
      if (!outcome.Error.empty()) throw std::runtime_error(outcome.Error);
    }
    const std::vector<StoredTable> before = ReadUniverse(file);
    const std::vector<StoredTable> after = ReadUniverse(now);
    comparison.Diff = CompareUniverses(before, after);
    comparison.Names.Learn(after);
    comparison.Names.Learn(before);
    comparison.ChangedCells = CellsOf(ChangedSystems(comparison.Diff), after);
  } catch (const std::exception& error) {
    comparison.Error = error.what();
  }
  return comparison;
}

void DifferencesPage::Start() {
  const std::string old = old_->text().trimmed().toStdString();
  if (old.empty()) return;
  cancel_->setEnabled(true);
  state_->setText(Caption(TextId::Comparing));
  task_.Start(
      [old, now = host_.UniverseFile(),
       version = version_](const BackgroundTask::IsCancelled& isCancelled) {
        return Compare(old, now, version, isCancelled);
      },
      [this](Comparison comparison) { Show(std::move(comparison)); });
}

// The first entry of the list stands for all tables.
void DifferencesPage::Show(Comparison comparison) {
  cancel_->setEnabled(false);
  comparison_ = std::move(comparison);
  tables_->clear();
  report_->clear();
  if (!comparison_.Error.empty()) {
    state_->setText(QString::fromStdString(comparison_.Error));
    return;
  }
  const UniverseDiff::Counts counts = comparison_.Diff.RowCounts();
  state_->setText(QString::fromStdString(
      FormatIn(choice_.Current, TextId::DiffSums, counts.Added, counts.Removed, counts.Changed)));
  tables_->addItem(Caption(TextId::AllTables));
  for (const TableDiff& table : comparison_.Diff.Tables) {
    tables_->addItem(
        QString::fromStdString(fmt::format("{} (+{} -{} ~{})", table.Name, table.Added.size(),
                                           table.Removed.size(), table.Changed.size())));
  }
  tables_->setCurrentRow(0);
}

Report DifferencesPage::ReportOf(int row) const {
  UniverseDiff diff = comparison_.Diff;
  if (row > 0) diff = {{comparison_.Diff.Tables[static_cast<std::size_t>(row) - 1]}, {}, {}};
  return MakeReport(diff, comparison_.Names, comparison_.Old, NameOfSide(host_.GameText()));
}

void DifferencesPage::ShowTable(int row) {
  if (row >= 0) report_->setPlainText(QString::fromStdString(PlainReport(ReportOf(row))));
}

// The kind of the report follows the name that the user gives its file.
void DifferencesPage::Save() {
  const QString name = QFileDialog::getSaveFileName(
      this, Caption(TextId::Export), "differences.html", "HTML (*.html);;Markdown (*.md)");
  if (name.isEmpty()) return;
  const Report report = ReportOf(tables_->currentRow());
  const std::string text = name.endsWith(".md") ? MarkdownReport(report) : HtmlReport(report);
  QFile file(name);
  const auto size = static_cast<qint64>(text.size());
  if (file.open(QIODevice::WriteOnly) && file.write(text.data(), size) == size) return;
  state_->setText(QString::fromStdString(
      FormatIn(choice_.Current, TextId::CannotWriteFile, name.toStdString())));
}

}  // namespace orrerix
