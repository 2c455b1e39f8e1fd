#include "shell/dialogi/pasek_dialogu.h"

#include <algorithm>

#include <QDialog>
#include <QPushButton>

#include "shell/kontrolki/pasek_przyciskow.h"

using namespace Qt::Literals::StringLiterals;

void UlozPasek(QDialog& dialog, TMStatusButtonBar& pasek, std::vector<PrzyciskDialogu> przyciski) {
  przyciski.push_back({u"Wyjscie"_s, u"Wyjście"_s, u"Esc"_s, [&dialog] { dialog.reject(); }});
  for (const PrzyciskDialogu& przycisk : przyciski)
    pasek.Dodaj(przycisk.nazwa, przycisk.tekst, przycisk.klawisz);
  pasek.findChild<QPushButton*>(przyciski.front().nazwa)->setDefault(true);
  pasek.ButtonClick = [przyciski = std::move(przyciski)](const TMStatusButton& klikniety) {
    const auto przycisk = std::find_if(przyciski.begin(), przyciski.end(), [&](const PrzyciskDialogu& p) {
      return klikniety.IsTheSameName(p.nazwa);
    });
    if (przycisk != przyciski.end()) przycisk->czynnosc();
  };
}
