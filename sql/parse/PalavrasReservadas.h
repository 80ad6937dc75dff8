// The table of words that an identifier must not be. Internal to the toolkit.
#pragma once
#include <QStringView>

inline constexpr int kReservedWords = 267;

// The word at a place from 0 to 266, in the table's order: by first letter, LENGTH twice.
QStringView ReservedWord(int index);
