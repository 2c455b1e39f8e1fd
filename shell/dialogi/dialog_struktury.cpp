#include "shell/dialogi/dialog_struktury.h"

#include <iterator>

#include <ui_dialog_struktury.h>

#include "platform/wyjatek.h"
#include "shell/dialogi/dialog_listy_pol.h"
#include "shell/dialogi/dialog_opisow_vat.h"
#include "shell/dialogi/dialogi.h"
#include "shell/dialogi/pasek_dialogu.h"
#include "shell/dialogi/widok_podgladu.h"
#include "shell/kontekst_okna.h"
#include "shell/rozmowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kZnakowSlowa = 8;  // seen at once

// What a person may enter, by file type; the rest the type fixes.
struct Wprowadzane {
  bool separator;       // the group with its first three choices
  bool brakSeparatora;  // a delimited file must have a separator
  bool kwalifikator;
  bool pierwszaLinia;
  bool slowa;  // the groups of code texts
};

constexpr Wprowadzane kWprowadzane[] = {
    {false, false, false, false, false},  // Zorvik
    {true, false, true, true, true},      // Rozdzielany
    {true, true, true, true, true},       // StalaSzerokosc
    {false, false, false, false, true},   // DBase
};

const Wprowadzane& DlaTypu(TypPliku typ) {
  return kWprowadzane[static_cast<size_t>(typ)];
}

// Leaves the cursor where it is when nothing changes.
void UstawTekst(QLineEdit& pole, const QString& tekst) {
  if (pole.text() != tekst) pole.setText(tekst);
}

}  // namespace

DialogStruktury::DialogStruktury(QWidget* rodzic, KontekstOkna& kontekst, const StrukturaPliku& struktura,
                                 const QString& plik)
    : DialogEdycji(rodzic, kontekst.rozmowa),
      m_ui(std::make_unique<Ui::DialogStruktury>()),
      m_kontekst(kontekst),
      m_struktura(struktura),
      m_poczatkowa(struktura) {
  m_ui->setupUi(this);
  m_podglad = new WidokPodgladu(m_ui->gbPodglad, kontekst);
  m_ui->ukladPodgladu->addWidget(m_podglad);
  UlozKontrolki();

  m_wybranySeparator = m_ui->rbInny;
  if (struktura.separator == u"\t") m_wybranySeparator = m_ui->rbTabulator;
  if (struktura.separator == u";") m_wybranySeparator = m_ui->rbSrednik;
  if (struktura.separator.isEmpty()) m_wybranySeparator = m_ui->rbBrakSeparatora;
  if (m_wybranySeparator == m_ui->rbInny) m_innySeparator = struktura.separator;

  Wypelnij();
  PolaczKontrolki();
  m_poczatkowa = Wynik();
  m_podglad->UstawStrukture(m_poczatkowa);
  m_podglad->UstawPlik(plik);
}

DialogStruktury::~DialogStruktury() = default;

void DialogStruktury::UlozKontrolki() {
  using S = StrukturaPliku;
  const bool towary = m_struktura.rodzaj == RodzajRekordu::Towary;
  setWindowTitle(towary ? u"Struktura pliku importu towarów"_s : u"Struktura pliku importu kontrahentów"_s);
  m_ui->gbTypTowaru->setVisible(towary);
  m_ui->gbWartosciPol->setVisible(!towary);
  m_slowa = {{m_ui->EdPoleAktywny, &S::EdPoleAktywny}, {m_ui->EdPoleUsuniety, &S::EdPoleUsuniety}};
  if (towary)
    m_slowa.insert(m_slowa.end(), {{m_ui->EdPoleTypTowar, &S::EdPoleTypTowar},
                                   {m_ui->EdPoleTypUsluga, &S::EdPoleTypUsluga},
                                   {m_ui->EdPoleTypOpakowanie, &S::EdPoleTypOpakowanie}});
  else
    m_slowa.insert(m_slowa.end(), {{m_ui->EdPoleDostawca, &S::EdPoleDostawca},
                                   {m_ui->EdPoleOdbiorca, &S::EdPoleOdbiorca},
                                   {m_ui->EdPoleProducent, &S::EdPoleProducent},
                                   {m_ui->EdPoleSklep, &S::EdPoleSklep}});
  for (const auto& [pole, slowo] : m_slowa)
    pole->setMinimumWidth(pole->fontMetrics().averageCharWidth() * kZnakowSlowa);

  std::vector<PrzyciskDialogu> przyciski = {{u"Akceptuj"_s, u"Akceptuj"_s, u"F2"_s, [this] { Akceptuj(); }},
                                            {u"Pola"_s, u"Pola"_s, u"F3"_s, [this] { Pola(); }}};
  if (towary) przyciski.push_back({u"OpisStawekVAT"_s, u"Opis VAT"_s, u"F4"_s, [this] { OpisStawekVAT(); }});
  UlozPasek(*this, *m_ui->MStatusButtonBar, std::move(przyciski));
}

void DialogStruktury::PolaczKontrolki() {
  const auto zmieniono = [this] { Zmieniono(); };
  connect(m_ui->CBTypPliku, &QComboBox::currentIndexChanged, this, [this](int typ) {
    m_struktura.CBTypPliku = static_cast<TypPliku>(typ);
    Wypelnij();
    m_podglad->UstawStrukture(Wynik());
  });
  for (QComboBox* const lista : {m_ui->CBPolskieZnaki, m_ui->CBKwalifikatorTekstu})
    connect(lista, &QComboBox::currentIndexChanged, this, zmieniono);
  for (QAbstractButton* const przycisk :
       std::initializer_list<QAbstractButton*>{m_ui->CBNieAnalizujPierwszejLinii, m_ui->rbTabulator,
                                               m_ui->rbSrednik, m_ui->rbInny, m_ui->rbBrakSeparatora})
    connect(przycisk, &QAbstractButton::toggled, this, zmieniono);
  connect(m_ui->rbInny, &QRadioButton::clicked, m_ui->EdInnySeparator, qOverload<>(&QWidget::setFocus));
  connect(m_ui->EdInnySeparator, &QLineEdit::textChanged, this, zmieniono);
  for (const auto& [pole, slowo] : m_slowa) connect(pole, &QLineEdit::textChanged, this, zmieniono);
}

void DialogStruktury::Wypelnij() {
  m_wypelnianie = true;
  const TypPliku typ = m_struktura.CBTypPliku;
  const Wprowadzane& wprowadzane = DlaTypu(typ);
  StrukturaPliku pokazywana = m_struktura;
  pokazywana.PrzyjmijTypPliku(typ);

  m_ui->CBTypPliku->setCurrentIndex(static_cast<int>(typ));
  m_ui->CBPolskieZnaki->setCurrentIndex(static_cast<int>(m_struktura.CBPolskieZnaki));
  m_ui->CBKwalifikatorTekstu->setCurrentIndex(static_cast<int>(m_struktura.CBKwalifikatorTekstu));
  m_ui->CBKwalifikatorTekstu->setEnabled(wprowadzane.kwalifikator);
  m_ui->CBNieAnalizujPierwszejLinii->setChecked(pokazywana.CBNieAnalizujPierwszejLinii);
  m_ui->CBNieAnalizujPierwszejLinii->setEnabled(wprowadzane.pierwszaLinia);

  (typ == TypPliku::Zorvik ? m_ui->rbTabulator : m_wybranySeparator)->setChecked(true);
  UstawTekst(*m_ui->EdInnySeparator, wprowadzane.separator ? m_innySeparator : QString());
  m_ui->gbSeparator->setEnabled(wprowadzane.separator);
  m_ui->rbBrakSeparatora->setEnabled(wprowadzane.brakSeparatora);
  m_ui->EdInnySeparator->setEnabled(m_ui->rbInny->isChecked());

  for (const auto& [pole, slowo] : m_slowa) UstawTekst(*pole, pokazywana.*slowo);
  for (QWidget* const grupa : {m_ui->gbStatus, m_ui->gbTypTowaru, m_ui->gbWartosciPol})
    grupa->setEnabled(wprowadzane.slowa);
  m_wypelnianie = false;
}

void DialogStruktury::Pobierz() {
  const Wprowadzane& wprowadzane = DlaTypu(m_struktura.CBTypPliku);
  m_struktura.CBPolskieZnaki = static_cast<StronaKodowa>(m_ui->CBPolskieZnaki->currentIndex());
  m_struktura.CBKwalifikatorTekstu =
      static_cast<KwalifikatorTekstu>(m_ui->CBKwalifikatorTekstu->currentIndex());
  if (wprowadzane.pierwszaLinia)
    m_struktura.CBNieAnalizujPierwszejLinii = m_ui->CBNieAnalizujPierwszejLinii->isChecked();
  if (wprowadzane.separator) {
    m_wybranySeparator = m_ui->grupaSeparatora->checkedButton();
    m_innySeparator = m_ui->EdInnySeparator->text();
  }
  if (wprowadzane.slowa)
    for (const auto& [pole, slowo] : m_slowa) m_struktura.*slowo = pole->text();
}

void DialogStruktury::Zmieniono() {
  if (m_wypelnianie) return;
  Pobierz();
  m_ui->EdInnySeparator->setEnabled(m_ui->rbInny->isChecked());
  m_podglad->UstawStrukture(Wynik());
}

StrukturaPliku DialogStruktury::Wynik() const {
  StrukturaPliku wynik = m_struktura;
  if (DlaTypu(wynik.CBTypPliku).separator) {
    wynik.separator.clear();
    if (m_wybranySeparator == m_ui->rbTabulator) wynik.separator = u"\t"_s;
    if (m_wybranySeparator == m_ui->rbSrednik) wynik.separator = u";"_s;
    if (m_wybranySeparator == m_ui->rbInny) wynik.separator = m_innySeparator;
  }
  wynik.PrzyjmijTypPliku(wynik.CBTypPliku);
  return wynik;
}

void DialogStruktury::Akceptuj() {
  const StrukturaPliku wynik = Wynik();
  if (const auto odmowa = SprawdzSlowaStatusu(wynik.EdPoleAktywny, wynik.EdPoleUsuniety))
    return m_kontekst.rozmowa.Powiedz(this, *odmowa);
  accept();
}

// The own layout has all columns: there is only the choice of those an import takes over.
void DialogStruktury::Pola() {
  if (m_struktura.CBTypPliku == TypPliku::Zorvik) {
    EdytujPolaStandardowe(this, m_kontekst, m_struktura);
    return;
  }
  DialogListyPol dialog(this, m_kontekst, Wynik(), m_podglad->Plik());
  if (m_kontekst.rozmowa.Pokaz(dialog) == Accepted) {
    const StrukturaPliku zmieniona = dialog.Wynik();
    m_struktura.pola = zmieniona.pola;
    m_struktura.oferowane = zmieniona.oferowane;
  }
  m_podglad->UstawStrukture(Wynik());
  m_podglad->UstawPlik(dialog.Plik());
}

void DialogStruktury::OpisStawekVAT() {
  try {
    DialogOpisowVat dialog(this, m_kontekst, m_struktura.opisyVat);
    if (m_kontekst.rozmowa.Pokaz(dialog) == Accepted) m_struktura.opisyVat = dialog.Opisy();
  } catch (const EMException& blad) {
    m_kontekst.rozmowa.PokazBlad(this, blad);
  }
  m_podglad->UstawStrukture(Wynik());
}

bool EdytujStrukture(QWidget* rodzic, KontekstOkna& kontekst, StrukturaPliku& struktura,
                     const QString& plik) {
  DialogStruktury dialog(rodzic, kontekst, struktura, plik);
  if (kontekst.rozmowa.Pokaz(dialog) != QDialog::Accepted) return false;
  struktura = dialog.Wynik();
  return true;
}
