#include "shell/okno/strony.h"

#include <ui_strona_eksport_kontrahentow.h>
#include <ui_strona_eksport_towarow.h>
#include <ui_strona_import_kontrahentow.h>
#include <ui_strona_import_towarow.h>

namespace {

template <typename Formularz>
QWidget* Utworz() {
  auto* const strona = new QWidget;
  Formularz().setupUi(strona);
  return strona;
}

constexpr OpisStrony kStrony[] = {
    {KtoryPrzebieg::ImportTowarow,
     Utworz<Ui::ts_importTow>,
     "MStatusButtonBar1",
     true,
     {{u"Import", u"Import", u"F2", "ImportTowMenu"},
      {u"StrukturaPliku", u"Struktura pliku", u"F6", "StrukturaplikuimportuTowMenu"}}},
    {KtoryPrzebieg::EksportTowarow,
     Utworz<Ui::ts_eksportTow>,
     "MStatusButtonBar2",
     false,
     {{u"Eksport", u"Eksport", u"F2", "EksportTowMenu"}}},
    {KtoryPrzebieg::ImportKontrahentow,
     Utworz<Ui::ts_importKontr>,
     "MStatusButtonBar4",
     false,
     {{u"Import", u"Import", u"F2", "ImportKontrMenu"},
      {u"Strukturapliku", u"Struktura pliku", u"F6", "StrukturaplikuimportuKontrMenu"}}},
    {KtoryPrzebieg::EksportKontrahentow,
     Utworz<Ui::ts_eksportKontr>,
     "MStatusButtonBar5",
     false,
     {{u"Eksport", u"Eksport", u"F2", "EksportKontrMenu"}}},
};

}  // namespace

std::span<const OpisStrony> TabelaStron() {
  return kStrony;
}
