// Rounding of amounts held in floating point.
//
//     ArredondaDouble(2.675, 2)     // 2.68
//     ArredondaDouble(-2.675, 2)    // -2.68
//     ArredondaDouble(1250, -2)     // 1300
#pragma once

// `value` rounded to `decimals` places, halves away from zero; a negative count rounds to tens, hundreds and
// so on.
//
// The scaled value first passes through its shortest text of 15 significant digits, which takes away the
// noise of the binary representation: 2.675 * 100 is 267.49999999999997 in binary and counts as 267.5.
// Intermediates have the 80 bits of `long double`. Infinities and NaN come back as they are; nothing is
// thrown.
double ArredondaDouble(double value, int decimals);
