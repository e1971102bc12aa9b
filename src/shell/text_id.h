// SPDX-License-Identifier: MIT
// What the program says, by what it is about, and the languages that it says it in.
#pragma once

#include <cstddef>
#include <cstdint>

namespace orrerix {

// The number of a language, as the setting LANG and the tables of the language file count them. A
// setting may hold any other number: such a language has no texts.
enum class Language : std::int16_t { English = 0, German = 1, French = 2 };
inline constexpr std::size_t kLanguages = 3;

// Every caption, tool tip and message that is not a text of the game or of a mod. The first ones
// are kept in the language file, where they may be edited; their numbers there are part of it.
enum class TextId : int {
  LanguageName = 0,
  EmptyBackgrounds = 1,
  SystemBackgrounds = 2,
  JumpGateLines = 3,
  JumpHoleLines = 4,
  TradeLaneLines = 5,
  SystemNames = 6,
  ShowOptions = 7,
  Slogan = 8,
  SearchPlaces = 9,
  SearchShips = 10,
  SearchEquipment = 11,
  SearchHead = 12,
  SloganTip = 13,
  LogoTip = 14,
  UnknownSystem = 15,
  Ammunition = 16,
  SwitchToTrades = 17,
  SellPrices = 18,
  StandardSellPrices = 19,
  SwitchToPrices = 20,
  TradesInsideSystem = 21,
  TradesOutsideSystem = 22,
  Owner = 23,
  SelectShip = 24,
  SelectEquipment = 25,
  Price = 26,
  SearchBribes = 27,
  BuyPrices = 28,

  // From here on texts are built in.
  PrintMap,
  ArtworkCredit,
  MainPage,
  MainPageTip,
  LinkNotOpened,
  StarMap,
  LoadingTitle,
  LoadingSlogan,
  LoadingCredit,
  ClosingTitle,
  SearchTextName,
  SearchCloseName,
  SearchFoundName,
  SearchPlacesName,
  UpdateTitle,
  UpdateNotice,
  NoPrinter,
  PrinterTakesNoPages,
  ErrorLogTitle,
  DataLogHead,
  ProgramLogHead,
  DataLogName,
  ProgramLogName,
  PricesAndTrades,
  Information,
  ShipsForSale,
  EquipmentForSale,
  ForSale,
  Prices,
  SpoilerTitle,
  SpoilerHeadLine,
  SpoilerText,
  SpoilerOk,
  SpoilerCancel,
  SpoilerOkTip,
  SpoilerCancelTip,
  SpoilerOff,
  SpoilerName,
  EngineProblem,
  PhysicalMemory,
  PageFile,
  AddressSpace,
  MemoryUsage,
  StartImport,
  ImportProgressName,
  ImportBegins,
  GameFolderName,
  GameMissing,
  UniverseInUse,
  SaveFolderMissing,
  FailureQuestion,
  OutOfMemory,
  LibraryLinkError,
  NoConnection,
  CannotWrite,
  ButtonOk,
  ButtonCancel,
  ButtonAbort,
  ButtonRetry,
  ButtonIgnore,
  ButtonClose,
  ReadingFile,
  ReadingTexts,
  ReadingLibrary,
  ImportDone,
  CalculatingGroups,
  CalculatingJumps,
  CalculatingLanes,
  CalculatingDocks,
  CalculatingPrices,
  CalculatingShips,
};
inline constexpr int kStoredTexts = 29;
inline constexpr int kTexts = static_cast<int>(TextId::CalculatingShips) + 1;

// The language in use. It belongs to the program; whoever speaks looks here.
struct LanguageChoice {
  Language Current = Language::English;
};

// For programs without a choice.
inline constexpr LanguageChoice kEnglishOnly;

}  // namespace orrerix
