#pragma once

#include <string>
#include <vector>

// What one run of a program took.
struct Przebieg {
  double sekund = 0;     // from start to end, by the clock on the wall
  double procesora = 0;  // seconds of all its threads
  std::string wyjscie;
};

// Runs a program and waits for it. Its standard error is dropped; an exit status other than 0 throws
// std::runtime_error with the command. `srodowisko`: NAME=VALUE to add.
Przebieg Uruchom(const std::vector<std::string>& polecenie, const std::vector<std::string>& srodowisko = {});
