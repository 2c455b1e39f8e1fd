#include "shell/dialogi/stawki_vat.h"

#include <ui_stawki_vat.h>

#include "model/bledy.h"
#include "shell/dialogi/pasek_dialogu.h"
#include "shell/kontekst_okna.h"
#include "shell/kontrolki/pamiec_okien.h"
#include "shell/rozmowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString KluczUkladu() {
  return u"Formularze/StawkiVat"_s;
}

}  // namespace

TFmVLTStawkiVat::TFmVLTStawkiVat(QWidget* rodzic, KontekstOkna& kontekst)
    : DialogEdycji(rodzic, kontekst.rozmowa), m_kontekst(kontekst) {
  m_wBazie.Wczytaj(kontekst.baza);
  m_stawki.Kopiuj(m_wBazie);
  Ui::TFmVLTStawkiVat ui;
  ui.setupUi(this);
  m_lista = ui.Stawki;
  UlozPasek(*this, *ui.MStatusButtonBar,
            {{u"Zapisz"_s, u"Zapisz"_s, u"F2"_s, [this] { Zapisz(); }},
             {u"Zmien"_s, u"Zmień"_s, u"F4"_s, [this] { Zmien(); }},
             {u"Usun"_s, u"Usuń"_s, u"F8"_s, [this] { Usun(); }}});
  connect(m_lista, &QListWidget::itemDoubleClicked, this, [this] { Zmien(); });
  PokazStawki(0);
  PrzywrocRozmiar(*this, KluczUkladu());
}

void TFmVLTStawkiVat::done(int wynik) {
  ZapamietajRozmiar(*this, KluczUkladu());
  QDialog::done(wynik);
}

void TFmVLTStawkiVat::PokazStawki(int biezaca) {
  m_lista->clear();
  for (int i = 0; i < m_stawki.Ilosc(); ++i) m_lista->addItem(StawkaNaTekst(m_stawki.Stawka(i), true));
  m_lista->addItem(u"<nowa>"_s);
  m_lista->setCurrentRow(biezaca);
}

std::optional<int> TFmVLTStawkiVat::Przyjmij(const QString& tekst, std::optional<int> dotychczas) {
  try {
    const int stawka = TekstNaStawke(tekst);
    if (stawka == dotychczas || !m_stawki.Zawiera(stawka)) return stawka;
    m_kontekst.rozmowa.Powiedz(this, {u"BŁĄD"_s, u"Lista zawiera już tą stawkę"_s});
  } catch (const EVLTWDError& blad) {
    m_kontekst.rozmowa.PokazBlad(this, blad);
  }
  return std::nullopt;
}

void TFmVLTStawkiVat::Zmien() {
  const int wiersz = m_lista->currentRow();
  if (wiersz < 0) return;
  const bool nowa = wiersz == m_stawki.Ilosc();
  const std::optional<int> dotychczas = nowa ? std::nullopt : std::optional(m_stawki.Stawka(wiersz));
  QString tekst = dotychczas ? StawkaNaTekst(*dotychczas, false) : QString();
  std::optional<int> stawka;
  while (!stawka) {
    const auto wpisany =
        m_kontekst.rozmowa.PodajTekst(this, {windowTitle(), u"Stawka w procentach albo ZW:"_s}, tekst);
    if (!wpisany) return;
    tekst = *wpisany;
    stawka = Przyjmij(tekst, dotychczas);
  }
  if (dotychczas) m_stawki.Usun(wiersz);
  m_stawki.Dodaj(*stawka);
  PokazStawki(m_stawki.Indeks(*stawka));
}

void TFmVLTStawkiVat::Usun() {
  const int wiersz = m_lista->currentRow();
  if (wiersz < 0 || wiersz >= m_stawki.Ilosc()) return;
  m_stawki.Usun(wiersz);
  PokazStawki(wiersz);
}

void TFmVLTStawkiVat::Zapisz() {
  if (!MaZmiany()) return accept();
  const Komunikat pytanie{u"UWAGA: zmiana stawek VAT"_s,
                          u"Czy na pewno chcesz zmienić aktualny zestaw stawek VAT ?"_s};
  if (m_kontekst.rozmowa.Zapytaj(this, pytanie, Rozmowa::Ikona::Warning,
                                 QMessageBox::Yes | QMessageBox::Cancel,
                                 QMessageBox::Cancel) != QMessageBox::Yes)
    return;
  try {
    m_stawki.ZapiszZmiany(m_kontekst.baza, m_wBazie);
  } catch (const EMException& blad) {
    return m_kontekst.rozmowa.PokazBlad(this, blad);
  }
  accept();
}
