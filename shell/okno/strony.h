#pragma once

#include <span>
#include <string_view>

#include "ustawienia/rodzaje_przebiegow.h"

class QWidget;

struct PrzyciskStrony {
  std::u16string_view nazwa, tekst, klawisz;
  std::string_view pozycjaMenu;  // does the same
};

// A page of the main window, made from its form; its title is that of its tab.
struct OpisStrony {
  KtoryPrzebieg przebieg;
  QWidget* (*utworz)();
  std::string_view pasek;
  bool pytaPrzyWyjsciu;
  PrzyciskStrony przyciski[2];  // the second may have no name; every page has a way out besides
};

// In the order of the tabs.
std::span<const OpisStrony> TabelaStron();
