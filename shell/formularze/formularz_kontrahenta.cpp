#include "shell/formularze/formularz_kontrahenta.h"

#include <ui_formularz_kontrahenta.h>

#include "model/kontrahent.h"

namespace {

using K = KolumnaKontrahenta;
namespace P = PoleKontrahenta;
using R = RodzajPola;

constexpr char kDane[] = "gbDane";
constexpr char kAdres[] = "gbAdres";
constexpr char kRodzaj[] = "gbRodzaj";
constexpr char kSklep[] = "gbSklep";
constexpr char kDostawca[] = "gbDostawca";
constexpr char kOdbiorca[] = "gbOdbiorca";
constexpr char kBank[] = "gbBank";
constexpr char kKarta[] = "gbKarta";
constexpr int kSpozaKatalogu = -1;

constexpr OpisPolaFormularza kPola[] = {
    {kDane, K::Nazwa, R::Tekst, P::Nazwa},
    {kDane, K::NIP, R::Tekst, P::Nip},
    {kDane, K::Skrot, R::Tekst, P::NazwaSkrocona},
    {kDane, K::KodKontr, R::Tekst, P::KodKontrahenta},
    {kDane, K::NrAnalityki, R::Tekst, P::NumerAnalityki},
    {kAdres, K::Ulica, R::Tekst, P::Ulica},
    {kAdres, K::Kod, R::Tekst, P::KodPocztowy},
    {kAdres, K::Miasto, R::Tekst, P::Miasto},
    {kAdres, K::Telefon, R::Tekst, P::Telefon},
    {kAdres, K::Fax, R::Tekst, P::Fax},
    {kAdres, K::EMail, R::Tekst, P::Email},
    {kRodzaj, K::Dostawca, R::Flaga, P::Dostawca},
    {kRodzaj, K::Odbiorca, R::Flaga, P::Odbiorca},
    {kRodzaj, K::Producent, R::Flaga, P::Producent},
    {kRodzaj, K::ZakPracChron, R::Flaga, P::ZakladPracyChronionej},
    {kRodzaj, K::Aktywny, R::Flaga, P::Status, u"Kontrahent aktywny"},
    {kRodzaj, K::Staly, R::Kontakty, P::Kontakty},
    {kSklep, K::NrSklepu, R::LiczbaLubBrak, kSpozaKatalogu, u"Numer sklepu"},
    {kSklep, K::NrSeryjny, R::Tekst, kSpozaKatalogu, u"Numer seryjny"},
    {kSklep, K::MagId, R::Magazyn, kSpozaKatalogu, u"Magazyn"},
    {kDostawca, K::RabatDost, R::Kwota, P::RabatUDostawcy},
    {kDostawca, K::FormaPlatDost, R::Liczba, P::FormaPlatnosciDostawcy},
    {kDostawca, K::TermPlatDost, R::Liczba, P::TerminPlatnosciDostawcy},
    {kDostawca, K::CzasRealZam, R::Liczba, P::CzasRealizacjiZamowienia},
    {kOdbiorca, K::RabatOdb, R::Kwota, P::RabatDlaOdbiorcy},
    {kOdbiorca, K::FormaPlatOdb, R::Liczba, P::FormaPlatnosciOdbiorcy},
    {kOdbiorca, K::TermPlatOdb, R::Liczba, P::TerminPlatnosciOdbiorcy},
    {kOdbiorca, K::MaxKredyt, R::Cena, P::MaksymalnyKredyt},
    {kOdbiorca, K::MaxPoTermPlat, R::Liczba, P::MaksymalnePrzekroczenieTerminu},
    {kBank, K::Bank, R::Tekst, P::NazwaBanku},
    {kBank, K::Konto, R::Tekst, P::Konto},
    {kBank, K::NaPrzelewie1, R::Tekst, P::NaPrzelewie1},
    {kBank, K::NaPrzelewie2, R::Tekst, P::NaPrzelewie2},
    {kKarta, K::KodKarty, R::Tekst, P::KodKarty},
    {kKarta, K::KartaAktywna, R::Flaga, P::KartaAktywna},
    {kKarta, K::TermWaznKarty, R::Data, P::TerminWaznosciKarty},
    {kKarta, K::PoziomRabatu, R::Liczba, P::PoziomRabatu},
};

// 2006 where every field is in its range: the next free number of a shop is not.
constexpr PoleBledu kBledy[] = {{2839, K::Nazwa}, {2860, K::NrSklepu}, {2006, K::NrSklepu}};

}  // namespace

OpisFormularza TFmVLTFormularzKontrahenta::Opis() {
  return {RodzajRekordu::Kontrahenci, kPola, kBledy};
}

TFmVLTFormularzKontrahenta::TFmVLTFormularzKontrahenta(QWidget* rodzic, Rozmowa& rozmowa,
                                                       TDmVLTKontrahent& kontrahent)
    : TFmVLTFormularzRekordu(rodzic, rozmowa, kontrahent),
      m_kontrahent(kontrahent),
      m_ui(std::make_unique<Ui::FormularzKontrahenta>()) {
  m_ui->setupUi(this);
  Zbuduj(Opis());
  setTabOrder(&Pole(K::Staly).Kontrolka(), m_ui->gbSklep);
  setTabOrder(m_ui->gbSklep, &Pole(K::NrSklepu).Kontrolka());
  setTabOrder(&Pole(K::PoziomRabatu).Kontrolka(), m_ui->osoby);
  m_ui->gbSklep->setChecked(kontrahent.Sklep());
  for (const QString& osoba : kontrahent.Osoby()) m_ui->osoby->appendPlainText(osoba);
  m_ui->osoby->document()->setModified(false);
}

TFmVLTFormularzKontrahenta::~TFmVLTFormularzKontrahenta() = default;

void TFmVLTFormularzKontrahenta::WpiszSzczegoly() {
  m_kontrahent.UstawSklep(m_ui->gbSklep->isChecked());
  if (!m_ui->osoby->document()->isModified()) return;
  const QStringList wiersze = m_ui->osoby->toPlainText().split(u'\n');
  std::vector<QString> osoby;
  for (const QString& wiersz : wiersze) osoby.push_back(wiersz.trimmed());
  m_kontrahent.UstawOsoby(osoby);
}
