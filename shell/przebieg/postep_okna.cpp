#include "shell/przebieg/postep_okna.h"

#include <algorithm>

#include "shell/przebieg/okno_postepu.h"
#include "shell/rozmowa.h"

namespace {

struct IkonaTytulu {
  std::u16string_view tytul;
  Rozmowa::Ikona ikona;
};

// Every other caption warns.
constexpr IkonaTytulu kIkony[] = {{u"Koniec", QMessageBox::Information},
                                  {u"Wystąpił błąd", QMessageBox::Critical},
                                  {u"Błąd", QMessageBox::Critical},
                                  {u"BŁĄD", QMessageBox::Critical}};

Rozmowa::Ikona Ikona(const QString& tytul) {
  const auto znana = std::find_if(std::begin(kIkony), std::end(kIkony),
                                  [&](const IkonaTytulu& i) { return tytul == QStringView(i.tytul); });
  return znana == std::end(kIkony) ? QMessageBox::Warning : znana->ikona;
}

}  // namespace

void PostepOkna::Faza(const QString& tekst, long long maksimum) {
  ++m_linia;
  Wyslij(StanPostepu::Linia, maksimum, tekst);
}

void PostepOkna::Pokaz(const QString& tytul, const QString& tekst) {
  m_doOkna.Wykonaj([&] {
    const TLProgressView::Przerwa przerwa(m_okno.Widok());
    m_rozmowa.Powiedz(&m_okno, {tytul, tekst}, Ikona(tytul));
  });
}

void PostepOkna::Wyslij(StanPostepu stan, long long liczba, const QString& tekst) {
  m_doOkna.Wykonaj([&] { m_okno.Widok().AddMessage(m_linia, tekst, stan, liczba); });
}
