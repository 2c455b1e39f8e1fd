#include "shell/formularze/parametry_towaru.h"

#include <QFormLayout>
#include <QLabel>

#include "shell/formularze/listy_wyboru.h"
#include "shell/formularze/pole_formularza.h"
#include "shell/formularze/postac_pola.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Typ = TDmVLTParametr::Typ;

constexpr OpisPola kWartosc{"Wartosc", TypPola::Dziesietne};

OpisPolaFormularza Opis(RodzajPola rodzaj) {
  return {.grupa = nullptr, .kolumna = 0, .rodzaj = rodzaj, .pole = -1};
}

// A good holds the position of the value.
std::vector<PozycjaListy> Pozycje(const std::vector<QString>& wartosci) {
  std::vector<PozycjaListy> pozycje;
  pozycje.reserve(wartosci.size());
  for (const QString& wartosc : wartosci) pozycje.push_back({static_cast<int>(pozycje.size()), wartosc});
  return pozycje;
}

// People name parameters: "&" is a letter there.
QString BezSkrotow(QString podpis) {
  return podpis.replace(u'&', u"&&"_s);
}

}  // namespace

ParametryTowaru::ParametryTowaru(QWidget* rodzic) : QScrollArea(rodzic) {
  setWidgetResizable(true);
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::NoFocus);
}

void ParametryTowaru::Wczytaj(KontekstSesji& sesja, int katId, const WartosciParametrow& wartosci,
                              QWidget& poprzednia) {
  m_sesja = &sesja;
  m_kategorie.emplace(sesja).Otworz();
  m_parametry.emplace(sesja).Otworz();
  m_poprzednia = &poprzednia;
  m_wartosci = wartosci;
  m_katIdTowaru = katId;
}

void ParametryTowaru::PokazKategorie(int katId) {
  m_katId = katId;
  m_wiersze.clear();
  auto* const srodek = new QWidget;
  auto* const uklad = new QFormLayout(srodek);
  uklad->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  QWidget* poprzednia = m_poprzednia;
  setWidget(srodek);
  // On the ground of the page.
  srodek->setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
  for (const int parId : m_kategorie->Parametry(katId)) {
    Wiersz& wiersz = m_wiersze.emplace_back(Wiersz{parId, TMField(kWartosc), nullptr});
    if (const auto wartosc = m_wartosci.Wartosc(parId))
      wiersz.wartosc.SetFloat(*wartosc);
    else if (katId != m_katIdTowaru)
      wiersz.wartosc.SetFloat(0);
    const QString podpis = Podpis(parId);
    wiersz.pole = UtworzPole(parId, podpis, wiersz.wartosc);
    auto* const etykieta = new QLabel(BezSkrotow(podpis));
    etykieta->setTextFormat(Qt::PlainText);
    uklad->addRow(etykieta, wiersz.pole);
    QWidget& kontrolka = wiersz.pole->Kontrolka();
    etykieta->setBuddy(&kontrolka);
    setTabOrder(poprzednia, &kontrolka);
    poprzednia = &kontrolka;
  }
}

QString ParametryTowaru::Podpis(int parId) {
  QString nazwa = m_parametry->Nazwa(parId);
  if (m_parametry->Rodzaj(parId) != Typ::Zakres) return nazwa;
  return u"%1 (od %2 do %3)"_s.arg(nazwa, PokazLiczbe(m_parametry->Od(parId)),
                                   PokazLiczbe(m_parametry->Do(parId)));
}

PoleFormularza* ParametryTowaru::UtworzPole(int parId, const QString& podpis, const TMField& wartosc) {
  PoleFormularza* const pole =
      (m_parametry->Rodzaj(parId) == Typ::Lista
           ? PoleFormularza::UtworzListe(Opis(RodzajPola::Parametr), podpis, wartosc,
                                         Pozycje(m_parametry->Wartosci(parId)))
           : PoleFormularza::Utworz(Opis(RodzajPola::KwotaLubBrak), podpis, wartosc, *m_sesja))
          .release();
  pole->Kontrolka().setObjectName(u"Parametr"_s + QString::number(parId));
  return pole;
}

QWidget* ParametryTowaru::Sprawdz() {
  QWidget* pierwsza = nullptr;
  for (const Wiersz& wiersz : m_wiersze)
    if (!wiersz.pole->Sprawdz() && !pierwsza) pierwsza = &wiersz.pole->Kontrolka();
  if (pierwsza) ensureWidgetVisible(pierwsza);
  return pierwsza;
}

void ParametryTowaru::Wpisz(WartosciParametrow& wartosci) {
  if (m_katId != m_katIdTowaru) {
    const auto dotychczasowe = wartosci.Wszystkie();
    for (const auto& [parId, wartosc] : dotychczasowe) wartosci.Usun(parId);
  }
  for (Wiersz& wiersz : m_wiersze) {
    wiersz.pole->Wpisz(wiersz.wartosc);
    if (wiersz.wartosc.IsNull())
      wartosci.Usun(wiersz.parId);
    else
      wartosci.Ustaw(wiersz.parId, wiersz.wartosc.AsFloat());
  }
}
