// The measures of the search box, in pixels. Both panels of a range and the gap between them take the width
// of the single panel, so that nothing beside them moves.
#pragma once

inline constexpr int kSearchWidth = 250;
inline constexpr int kRangeEndWidth = 125;
inline constexpr int kRangeStartWidth = 103;
inline constexpr int kRangeGap = 22;
inline constexpr int kPanelHeight = 25;

static_assert(kRangeStartWidth + kRangeGap + kRangeEndWidth == kSearchWidth);
