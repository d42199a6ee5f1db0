#ifndef ZV_DATE_PATTERN_H
#define ZV_DATE_PATTERN_H

/// The pattern of dates for which none is given.
inline constexpr char zvDefaultDatePattern[] = "DD/MM/YYYY::hh-mm-ss";

#endif
