#pragma once

#include <cstddef>

/** What documents may cost, and what Qt 5.15.8 was measured to take for their parts. */
namespace lctrlsex::cost {

using std::size_t;

// Limits that a user can understand and that no sensible document reaches.
inline constexpr size_t deepestElement = 500;
inline constexpr size_t deepestList = 50;
inline constexpr size_t deepestTable = 4;
inline constexpr int mostTables = 256;
inline constexpr int mostColumns = 1000;
inline constexpr double mostCells = 200000;
inline constexpr int mostFloats = 256;
inline constexpr double longestParagraph = 500000;
// Qt lays out for ever below pixel 8 388 607, and its widths overflow beyond. A picture in the
// midst of odd markup can be 2.5 times as high as it was taken for.
inline constexpr double greatestHeight = 3000000;
inline constexpr double greatestWidth = 4000000;
inline constexpr double mostMemory = 220e6;
inline constexpr double mostWork = 1.6e9;

// Measured with Qt 5.15.8, in nanoseconds and bytes, rounded up.
inline constexpr double openTagTime = 1500;
inline constexpr double fontTagTime = 2000;
inline constexpr double linkTime = 3500;
inline constexpr double styleTime = 1500;
inline constexpr double closeTagTime = 700;
inline constexpr double perDepthTime = 18;
inline constexpr double textRunTime = 2500;
inline constexpr double characterTime = 60;
inline constexpr double tabTime = 1000;
inline constexpr double lineTime = 1500;
inline constexpr double blockTime = 4500;
inline constexpr double listItemTime = 24;
inline constexpr double listTime = 4000;
inline constexpr double imageTime = 14000;
inline constexpr double imagePerCharacterTime = 80;
inline constexpr double slotTime = 2700;
inline constexpr double cellTime = 13000;
inline constexpr double fontTime = 250000;
inline constexpr double floatPerLineTime = 10;
inline constexpr double wordTime = 10;
inline constexpr double scriptChangeTime = 4000;
inline constexpr double markupCharacterTime = 30;
inline constexpr double tagMemory = 620;
inline constexpr double blockMemory = 400;
inline constexpr double cellMemory = 500;
inline constexpr double characterMemory = 10;
// A change of format or script inside a word costs as much as so many characters.
inline constexpr double changeUnits = 30;
// Below this length a word is no dearer than its characters.
inline constexpr double plainWord = 24;

inline constexpr double layoutWidth = 256;
inline constexpr double ordinaryFont = 16;
inline constexpr double linePerFont = 1.5;
inline constexpr double narrowAdvance = 0.6;
inline constexpr double wideAdvance = 1.2;
inline constexpr double listIndent = 40;
inline constexpr double quoteIndent = 80;
inline constexpr double blockMargins = 30;

} // namespace lctrlsex::cost
