#pragma once

#include <vector>

#include "run/uwagi.h"

class QWidget;
class Rozmowa;

// Shows the notices of a run: each with the number of its records and the first of them.
void PokazUwagi(QWidget* rodzic, Rozmowa& rozmowa, const std::vector<Uwaga>& uwagi);
