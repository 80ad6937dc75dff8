// What an item of an order is worth.
//
//     ValorDoItem({2500, 3}, {389, 2})      // 2,500 of 3,89 each: 9,73
#pragma once

#include <optional>

#include "platform/rtl/Decimal.h"

// Quantity (three decimals) times price (two), rounded to cents with halves up; exact. Both at least 0.
// Nothing where the cents do not fit 64 bits.
std::optional<Decimal> ValorDoItem(const Decimal& quantidade, const Decimal& preco);
