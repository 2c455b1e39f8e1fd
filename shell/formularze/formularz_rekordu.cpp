#include "shell/formularze/formularz_rekordu.h"

#include <algorithm>

#include <QAbstractSlider>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMetaProperty>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

#include "model/bledy.h"
#include "model/element.h"
#include "model/szerokosci.h"
#include "shell/formularze/etykieta_bledu.h"
#include "shell/kontrolki/pasek_przyciskow.h"
#include "shell/rozmowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kPrzerwano = QDialog::Accepted + 1;
constexpr int kPrzekroczonyZakres = 2006;

QString Podpis(const OpisPolaFormularza& pole, RodzajRekordu katalog) {
  const std::u16string_view podpis =
      pole.podpis.empty() ? KatalogPol(katalog)[static_cast<std::size_t>(pole.pole)].nazwa : pole.podpis;
  return QStringView(podpis).toString();
}

// An open cell has handed its text over; its editor goes only with the next events.
bool JestEdytoremKomorki(const QWidget& kontrolka) {
  return qobject_cast<const QTableWidget*>(kontrolka.parentWidget()->parentWidget());
}

// What a person sees in the controls. By control: one that is looked at comes to the end of its parent's
// list.
std::map<const QWidget*, QStringList> Tresc(const QWidget& okno) {
  std::map<const QWidget*, QStringList> tresci;
  for (const QWidget* const kontrolka : okno.findChildren<QWidget*>()) {
    if (JestEdytoremKomorki(*kontrolka)) continue;
    QStringList tresc;
    if (const auto* const tabela = qobject_cast<const QTableWidget*>(kontrolka))
      for (int i = 0; i < tabela->rowCount() * tabela->columnCount(); ++i)
        if (const auto* const komorka = tabela->item(i / tabela->columnCount(), i % tabela->columnCount()))
          tresc << komorka->text();
    const QMetaProperty wartosc = kontrolka->metaObject()->userProperty();
    const bool przesuwa = qobject_cast<const QAbstractSlider*>(kontrolka);
    if (wartosc.isValid() && !przesuwa) tresc << wartosc.read(kontrolka).toString();
    if (!tresc.isEmpty()) tresci.emplace(kontrolka, tresc);
  }
  return tresci;
}

}  // namespace

TFmVLTFormularzRekordu::~TFmVLTFormularzRekordu() = default;

void TFmVLTFormularzRekordu::Zbuduj(const OpisFormularza& opis) {
  m_opis = opis;
  findChild<QLabel*>(u"lbOdmowa"_s)->hide();
  DodajPola();
  DodajPrzyciski();
  setWindowTitle(windowTitle() + u" – "_s + Znak());
  PrzejdzDo(m_pola.front()->Kontrolka());
}

void TFmVLTFormularzRekordu::DodajPola() {
  QWidget* poprzednia = nullptr;
  for (const OpisPolaFormularza& opis : m_opis.pola) {
    auto& uklad = static_cast<QFormLayout&>(*findChild<QGroupBox*>(QLatin1String(opis.grupa))->layout());
    const QString podpis = Podpis(opis, m_opis.katalog);
    m_pola.push_back(
        PoleFormularza::Utworz(opis, podpis, m_rekord.Query.Field(opis.kolumna), m_rekord.Sesja()).release());
    PoleFormularza* const pole = m_pola.back();
    auto* const etykieta = opis.rodzaj == RodzajPola::Flaga ? nullptr : new QLabel(podpis);
    uklad.addRow(etykieta, pole);
    if (etykieta) etykieta->setBuddy(&pole->Kontrolka());
    if (poprzednia) setTabOrder(poprzednia, &pole->Kontrolka());
    poprzednia = &pole->Kontrolka();
  }
}

// What the record is known by while another page hides its first fields.
QString TFmVLTFormularzRekordu::Znak() const {
  const auto tekst = [this](int numer) {
    return m_rekord.Query.Field(m_opis.pola[static_cast<std::size_t>(numer)].kolumna).AsString();
  };
  return tekst(0).isEmpty() ? tekst(1) : tekst(0);
}

void TFmVLTFormularzRekordu::DodajPrzyciski() {
  auto* const pasek = new TMStatusButtonBar(this);
  pasek->Dodaj(u"Zapisz"_s, u"Zapisz"_s, u"F2"_s);
  pasek->Dodaj(u"PrzerwijImport"_s, u"Przerwij import"_s, {});
  pasek->Dodaj(u"Rezygnuj"_s, u"Rezygnuj"_s, u"Esc"_s);
  pasek->ButtonClick = [this](const TMStatusButton& przycisk) {
    if (przycisk.IsTheSameName(u"Zapisz"))
      Zatwierdz();
    else if (przycisk.IsTheSameName(u"Rezygnuj"))
      reject();
    else
      done(kPrzerwano);
  };
  pasek->findChild<QPushButton*>(u"Zapisz"_s)->setDefault(true);
  layout()->addWidget(pasek);
}

int TFmVLTFormularzRekordu::PokazOkno() {
  m_poczatkowaTresc = Tresc(*this);
  return m_rozmowa.Pokaz(*this);
}

bool TFmVLTFormularzRekordu::MaZmiany() {
  const QPointer aktywna(focusWidget());
  ZakonczPisanie();
  const bool zmieniona = Tresc(*this) != m_poczatkowaTresc;
  if (aktywna) aktywna->setFocus();
  return zmieniona;
}

// What is still being typed counts as left: a cell hands over its text, a name makes a short name.
void TFmVLTFormularzRekordu::ZakonczPisanie() {
  if (QWidget* const aktywna = focusWidget()) aktywna->clearFocus();
}

bool TFmVLTFormularzRekordu::PokazModalnie() {
  findChild<QPushButton*>(u"PrzerwijImport"_s)->hide();
  return PokazOkno() == QDialog::Accepted;
}

Poprawka TFmVLTFormularzRekordu::Popraw(const OdmowaZapisu& odmowa) {
  PokazOdmowe(odmowa);
  switch (PokazOkno()) {
    case QDialog::Accepted:
      return Poprawka::Poprawiono;
    case kPrzerwano:
      return Poprawka::Stop;
    default:
      return Poprawka::Zrezygnowano;
  }
}

void TFmVLTFormularzRekordu::PokazOdmowe(const OdmowaZapisu& odmowa) {
  auto& naglowek = *findChild<QLabel*>(u"lbOdmowa"_s);
  naglowek.setText(odmowa.tekst.trimmed());
  naglowek.show();
  if (PokazOdmoweSzczegolu(odmowa.blad)) return;
  const bool wadaPola = odmowa.blad.MacCode() == kPrzekroczonyZakres || ZaDlugiTekst(odmowa.blad);
  if (wadaPola && !Sprawdz()) return;
  const auto pola = PolaOdmowy(odmowa.blad.MacCode());
  for (PoleFormularza* const pole : pola) pole->PokazBlad(odmowa.blad.Tresc());
  const QString tresc = TrescZPrzyczyna(odmowa.blad);
  if (pola.empty())
    naglowek.setText(tresc.startsWith(naglowek.text()) ? tresc : naglowek.text() + u'\n' + tresc);
  else
    PrzejdzDo(pola.front()->Kontrolka());
}

std::vector<PoleFormularza*> TFmVLTFormularzRekordu::PolaOdmowy(int kod) {
  std::vector<PoleFormularza*> pola;
  for (const PoleBledu& pole : m_opis.bledy)
    if (pole.kod == kod) pola.push_back(&Pole(pole.kolumna));
  if (pola.size() > 1)
    std::erase_if(pola, [this](const PoleFormularza* pole) {
      return !m_rekord.Query.Field(pole->Kolumna()).Zmienione();
    });
  return pola;
}

PoleFormularza& TFmVLTFormularzRekordu::Pole(std::size_t kolumna) {
  return **std::find_if(m_pola.begin(), m_pola.end(),
                        [kolumna](const PoleFormularza* pole) { return pole->Kolumna() == kolumna; });
}

void TFmVLTFormularzRekordu::PrzejdzDo(QWidget& kontrolka) {
  auto& zakladki = *findChild<QTabWidget*>();
  for (int i = 0; i < zakladki.count(); ++i)
    if (zakladki.widget(i)->isAncestorOf(&kontrolka)) zakladki.setCurrentIndex(i);
  kontrolka.setFocus();
}

void TFmVLTFormularzRekordu::Sprobuj(const std::function<void()>& czynnosc) {
  try {
    czynnosc();
  } catch (const EMException& blad) {
    m_rozmowa.PokazBlad(this, blad);
  }
}

// Every fault is shown, the focus goes to the first.
bool TFmVLTFormularzRekordu::Sprawdz() {
  QWidget* pierwsza = nullptr;
  for (PoleFormularza* const pole : m_pola)
    if (!pole->Sprawdz() && !pierwsza) pierwsza = &pole->Kontrolka();
  QWidget* const wSzczegolach = SprawdzSzczegoly();
  if (!pierwsza) pierwsza = wSzczegolach;
  if (pierwsza) PrzejdzDo(*pierwsza);
  return !pierwsza;
}

void TFmVLTFormularzRekordu::Zatwierdz() {
  ZakonczPisanie();
  if (!Sprawdz()) return;
  for (PoleFormularza* const pole : m_pola) pole->Wpisz(m_rekord.Query.Field(pole->Kolumna()));
  WpiszSzczegoly();
  accept();
}
