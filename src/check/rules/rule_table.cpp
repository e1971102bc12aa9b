// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>

#include "check/rules/rule.h"

namespace orrerix::check {
namespace {

constexpr Severity kError = Severity::Error;
constexpr Severity kWarning = Severity::Warning;
constexpr Severity kNote = Severity::Note;

// In the order of Rule, which is that of the ids.
constexpr std::array kRules = std::to_array<RuleInfo>({
    {Rule::AssetMissing, "asset-missing", kWarning,
     "A model, material or cockpit file does not exist.",
     "Looks up da_archetype, material_library, cockpit and pilot_mesh of archetypes below the data "
     "folder. Only with a base, and only if it or the game holds any .cmp file at all."},
    {Rule::BadBytes, "bad-bytes", kWarning, "A file holds bytes that no text has.",
     "The first line with a NUL, with the replacement character U+FFFD in UTF-8, or with one of "
     "the bytes 81, 8D, 8F, 90 and 9D in Windows-1252. Often a damaged copy or a wrong "
     "conversion."},
    {Rule::BadHeader, "bad-header", kError, "A section header lacks its \"]\" or its name.",
     "The game may take the line for something else and lose the section."},
    {Rule::BaseNoObject, "base-no-object", kNote, "No object in space belongs to a base.",
     "No object of any system names the base in base or dock_with, so nobody can dock there. "
     "Silent unless all system files are read."},
    {Rule::BaseSystem, "base-system", kError, "The system of a base does not exist.",
     "Base.system names no System, is empty or is missing."},
    {Rule::CardMalformed, "card-malformed", kWarning, "The markup of an info card is broken.",
     "Between byte order mark and XML declaration at the start and blanks at the end, a card is "
     "one element: tags paired in order, attributes quoted, no entities but amp, lt, gt, quot, "
     "apos and numbers, no control characters. The game shows a broken card as an empty one."},
    {Rule::CardMissing, "card-missing", kWarning, "An info card does not exist.",
     "The library of the number is read and holds neither a card nor a string of that number."},
    {Rule::DamagedFile, "damaged-file", kError, "A file cannot be read.",
     "A packed file is damaged, a text file is in UTF-16, a resource library is none, or the "
     "system does not let the file be read."},
    {Rule::EffectUnknown, "effect-unknown", kError, "An effect or a fuse does not exist.",
     "Effects and fuses that archetypes name, space dust of zones and systems, and the visual "
     "parts of effects."},
    {Rule::EquipmentPart, "equipment-part", kError, "A part of an equipment does not exist.",
     "What launchers fire, the motor of a munition, the explosion, the loot, the pod and the "
     "debris of an archetype."},
    {Rule::FactionUnknown, "faction-unknown", kError, "A faction does not exist.",
     "Named by relations, objects, zones, systems, bases, people or faction properties; no Group "
     "has that nickname."},
    {Rule::FieldZone, "field-zone", kError,
     "The zone of an asteroid field or a nebula does not exist.",
     "The zone key of Asteroids or Nebula is missing or names no zone of the same file."},
    {Rule::FileCase, "file-case", kNote, "Files are named in other case than on disk.",
     "Does no harm on Windows. One finding lists all lines that name an ini file of the game "
     "folder in other case than it has there."},
    {Rule::FileMissing, "file-missing", kError, "A file that the game expects does not exist.",
     "Only with a base: without one files may be absent because the mod leaves them as they are."},
    {Rule::FileTwice, "file-twice", kWarning, "Two files have the same path but for case.",
     "Windows knows only one of them. The first in byte order counts, the other is never read."},
    {Rule::FilesAbsent, "files-absent", kNote,
     "Files that the game expects are not in this folder.",
     "Counts them. Rules are silent about what may stand in absent files; name the unmodified game "
     "as base to have everything checked."},
    {Rule::ForgottenHeader, "forgotten-header", kError, "A section starts without a header.",
     "The key that names a section stands a second time in it: the header above was probably "
     "forgotten. The check goes on as if it were there."},
    {Rule::GoodPart, "good-part", kError, "A good is incomplete or names what does not exist.",
     "Equipment, ship, hull, addons and ammunition of a good must exist. The category is "
     "equipment, "
     "commodity, ship or shiphull; the first two need equipment, a ship needs a hull that is a "
     "shiphull, a shiphull needs a ship."},
    {Rule::GotoTarget, "goto-target", kError, "The other end of a jump does not exist.",
     "The first value of goto names no system, or the second one no object of that system's file."},
    {Rule::HardpointTwice, "hardpoint-twice", kWarning,
     "A loadout mounts two items on one hardpoint.",
     "Counts guns, thrusters, shield generators, mine and countermeasure droppers. Only one of the "
     "two is mounted."},
    {Rule::HardpointUnknown, "hardpoint-unknown", kNote,
     "A loadout mounts an item on a hardpoint that the ship does not list.",
     "The hardpoint of a gun, thruster, shield generator, mine or countermeasure dropper stands in "
     "no hp_type of the ship. Silent for ships without hp_type."},
    {Rule::JumpOneWay, "jump-one-way", kWarning, "A jump does not lead back.",
     "The object at the other end has a goto that does not name this system and this object, or "
     "none."},
    {Rule::KeyDuplicate, "key-duplicate", kWarning, "A key stands twice in a section.",
     "Of a key that may stand once the first line counts, so the later one has no effect. Keys "
     "that form lists are left alone."},
    {Rule::KeyMisspelt, "key-misspelt", kWarning, "A key is probably misspelt.",
     "In sections of that name another key, which differs by one letter or two swapped ones, "
     "stands at least 20 times and at least 50 times as often, and it is not in this section."},
    {Rule::LaneBroken, "lane-broken", kError, "A trade lane is broken.",
     "next_ring or prev_ring names no object of the file, or the ring that it names does not name "
     "this one in return."},
    {Rule::LoadoutArchetype, "loadout-archetype", kError,
     "The archetype of a loadout does not exist.",
     "It names no ship, no solar and no simple object."},
    {Rule::LoadoutItem, "loadout-item", kError, "An item of a loadout does not exist.",
     "A line of equip or cargo names no equipment."},
    {Rule::MapCellShared, "map-cell-shared", kNote, "Two systems stand in one cell of the map.",
     "Their pos is the same when rounded, so the map shows one over the other."},
    {Rule::MarketBase, "market-base", kError, "A market belongs to a base that does not exist.",
     "BaseGood.base names no base."},
    {Rule::MarketDuplicate, "market-duplicate", kWarning, "A market lists a good twice.",
     "An earlier line for the same base, in this file or another, lists the good, too."},
    {Rule::MarketGood, "market-good", kError, "A market sells a good that does not exist.",
     "The first value of MarketGood names no good."},
    {Rule::MBaseBase, "mbase-base", kError, "The people of a base that does not exist.",
     "MBase.nickname names no base."},
    {Rule::MBasePart, "mbase-part", kError, "A part of a base's people does not exist.",
     "Body parts, voice and room of a person, people of a faction or a room: body parts and voices "
     "of the whole game, rooms and people of the same base."},
    {Rule::MissingComma, "missing-comma", kError, "A comma between two numbers is missing.",
     "One value holds several numbers with only blanks between them."},
    {Rule::MountImpossible, "mount-impossible", kNote, "No ship can mount an item that is on sale.",
     "The hardpoint type of a gun or a shield generator is in no hp_type of any ship."},
    {Rule::NameMissing, "name-missing", kWarning, "A thing that players see has no name.",
     "ids_name of factions and of objects with goto, base or dock_with, strid_name of systems and "
     "bases: missing, empty or 0."},
    {Rule::NicknameDuplicate, "nickname-duplicate", kError, "A nickname is taken already.",
     "An earlier section of that kind has the same nickname. Which of the two counts is the game's "
     "own business. Zones and encounters need to be unique in their file, rooms and people in "
     "their base, all else in the game."},
    {Rule::NicknameMissing, "nickname-missing", kError, "A section has no nickname.",
     "Nothing can name what the section defines. The key is nickname, of fuses name."},
    {Rule::NoEquals, "no-equals", kWarning, "A line has no \"=\".",
     "It is neither header, nor key and value, nor comment. Keys that stand alone in the game's "
     "own "
     "files are left alone: separable, offers_missions and bases."},
    {Rule::NpcShipUnknown, "npc-ship-unknown", kError,
     "A part of a faction's ships does not exist.",
     "A ship of a faction's properties, or the loadout or the archetype of such a ship."},
    {Rule::NumberExpected, "number-expected", kError, "A value is no number.",
     "A number is a sign or none, digits with at most one point, an exponent or none."},
    {Rule::NumberRange, "number-range", kWarning, "A number is out of range.",
     "A delay of fire or a lifetime that is not above 0, a negative mass, price, capacity or the "
     "like, a reputation outside -1 to 1."},
    {Rule::ObjectArchetype, "object-archetype", kError,
     "The archetype of an object does not exist.", "Object.archetype names no solar."},
    {Rule::ObjectBase, "object-base", kError, "The base of an object does not exist.",
     "base or dock_with of an object names no base."},
    {Rule::ObjectLoadout, "object-loadout", kError, "The loadout of an object does not exist.",
     "Object.loadout names no loadout."},
    {Rule::ObjectOutsideMap, "object-outside-map", kNote,
     "An object lies outside the system's map.",
     "Three quarters of its x or z, times the system's navmapscale, are more than 100000."},
    {Rule::ObjectParent, "object-parent", kError, "The parent of an object does not exist.",
     "Object.parent names no object of the same file."},
    {Rule::ObjectStar, "object-star", kError, "The star of an object does not exist.",
     "Object.star names no star."},
    {Rule::PriceMissing, "price-missing", kWarning, "A good has no price.",
     "A good of category equipment, commodity or shiphull lacks price, or its price is 0 and a "
     "market sells it. A market sells a good if its fifth value is above 0."},
    {Rule::RelationAsymmetric, "relation-asymmetric", kWarning,
     "Two factions differ in what they think of each other.",
     "The values of both rep lines are not the same. Reported at the faction whose nickname comes "
     "first."},
    {Rule::RelationMissing, "relation-missing", kWarning, "A faction has no opinion of another.",
     "Each Group needs a rep line for each group, itself among them."},
    {Rule::SoundUnknown, "sound-unknown", kWarning, "A sound does not exist.",
     "Named by archetypes, effects, music of systems or zones; no Sound has that nickname."},
    {Rule::SystemFileUnused, "system-file-unused", kNote,
     "A file beside the systems' files is not used.",
     "An ini file right in a folder of a system that no file of the game names."},
    {Rule::SystemUnreachable, "system-unreachable", kNote, "No jumps lead to a system.",
     "There is no way of jumps from Li01, or from the first system without one. Silent unless all "
     "system files are read."},
    {Rule::TextBeforeSection, "text-before-section", kWarning,
     "Text stands above the first header.", "It belongs to no section, and the game ignores it."},
    {Rule::TextLibrary, "text-library", kError, "A text number belongs to no library.",
     "Its upper 16 bits count the DLL lines of the configuration, and there are fewer."},
    {Rule::TextMissing, "text-missing", kError, "A name does not exist.",
     "The library of the number is read and holds no string of that number."},
    {Rule::ValueCount, "value-count", kError, "A line has too few or too many values.",
     "Or one of its values is empty. Empty values at the end do not count."},
    {Rule::WeaponTypeUnknown, "weapon-type-unknown", kWarning,
     "A weapon or shield type does not exist.",
     "weapon_type names no WeaponType, or shield_type stands in no shield_mod of any."},
    {Rule::ZoneEncounter, "zone-encounter", kError, "An encounter of a zone does not exist.",
     "Zone.encounter names no EncounterParameters of the same file."},
});

}  // namespace

std::span<const RuleInfo> AllRules() {
  return kRules;
}

const RuleInfo& InfoOf(Rule rule) {
  return kRules[static_cast<std::size_t>(rule)];
}

std::optional<Rule> FindRule(std::string_view id) {
  const auto found = std::find_if(kRules.begin(), kRules.end(),
                                  [id](const RuleInfo& rule) { return rule.Id == id; });
  return found == kRules.end() ? std::nullopt : std::optional(found->Rule);
}

}  // namespace orrerix::check
