#pragma once

// Characters that the text columns of the schema hold: {tekst} and {dlugi} there. Servers refuse longer
// texts; embedded databases would store them, and such rows could not move between the two. The longest line
// of a file's field is far shorter; a line of the change log holds some of them.
inline constexpr int kZnakowTekstu = 1000;
inline constexpr int kZnakowDlugiego = 100'000;
