// A pause that keeps the screen alive.
//
//     Wait(200);   // returns after 200 ms at the earliest; pending messages were processed meanwhile
#pragma once

// Processes the program's pending messages until `milliseconds` have passed, resting 1 ms on each round; 0
// and below return at once. Handlers run inside: what the caller holds may have changed.
void Wait(int milliseconds);
