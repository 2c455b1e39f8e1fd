#include "shell/formularze/formularz_towaru.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include <ui_formularz_towaru.h>

#include "model/bledy.h"
#include "model/nazwy_skrocone.h"
#include "model/towar.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using K = KolumnaTowaru;
namespace P = PoleTowaru;
using R = RodzajPola;

constexpr char kTowar[] = "gbTowar";
constexpr char kCeny[] = "gbCeny";
constexpr char kOpisy[] = "gbOpisy";
constexpr char kPozostale[] = "gbPozostale";
constexpr char kKategoria[] = "gbKategoria";
constexpr char kProducent[] = "gbProducent";
constexpr int kSpozaKatalogu = -1;

constexpr OpisPolaFormularza kPola[] = {
    {kTowar, K::Kod, R::Tekst, P::Kod},
    {kTowar, K::Nazwa, R::Tekst, P::Nazwa},
    {kTowar, K::Skrot, R::Tekst, P::NazwaSkrocona},
    {kTowar, K::TypTowaru, R::TypTowaru, P::TypTowaru, u"Typ towaru"},
    {kTowar, K::Stawka, R::StawkaVat, P::StawkaVat},
    {kTowar, K::AsId, R::Asortyment, P::Asortyment},
    {kTowar, K::JMId, R::Jednostka, P::JednostkaMiary},
    {kCeny, K::CenaEw, R::Cena, P::CenaEw},
    {kCeny, K::CenaDet, R::Cena, P::CenaDet},
    {kCeny, K::CenaHurt, R::Cena, P::CenaHurt},
    {kCeny, K::CenaNoc, R::Cena, P::CenaNoc},
    {kCeny, K::CenaDod, R::Cena, P::CenaDod},
    {kCeny, K::CenaOtwarta, R::Flaga, P::CenaOtwarta},
    {kCeny, K::Marza, R::Procent, P::Marza, u"Marża (%)"},
    {kCeny, K::HurtRabat, R::Procent, P::HurtRabat, u"Rabat hurtowy (%)"},
    {kCeny, K::NocNarzut, R::Procent, P::NocNarzut, u"Narzut nocny (%)"},
    {kOpisy, K::Opis1, R::Tekst, P::Opis1},
    {kOpisy, K::Opis2, R::Tekst, P::Opis2},
    {kOpisy, K::Opis3, R::Tekst, P::Opis3},
    {kOpisy, K::Opis4, R::Tekst, P::Opis4},
    {kOpisy, K::Indeks1, R::Tekst, P::Indeks1},
    {kOpisy, K::Indeks2, R::Tekst, P::Indeks2},
    {kPozostale, K::IleWZgrzewce, R::Kwota, P::IleWZgrzewce},
    {kPozostale, K::IleWCalosci, R::Kwota, P::IleWCalosci},
    {kPozostale, K::TermWazn, R::Liczba, P::TermWazn},
    {kPozostale, K::PrefPLU, R::Liczba, P::PrefPLU},
    {kPozostale, K::OpakId, R::Opakowanie, kSpozaKatalogu, u"Opakowanie"},
    {kPozostale, K::CKU, R::Tekst, kSpozaKatalogu, u"Kod centralny (CKU)"},
    {kKategoria, K::KatId, R::Kategoria, kSpozaKatalogu, u"Kategoria"},
    {kProducent, K::Producent, R::Kontrahent, P::NipProducenta},
};

// What a register knows the good by: these fields and the additional codes.
constexpr int kNaKasie = 2820;

constexpr PoleBledu kBledy[] = {
    {2813, K::AsId},    {2814, K::JMId},       {2815, K::Stawka},    {2816, K::Kod},
    {2818, K::OpakId},  {2819, K::Skrot},      {2821, K::TypTowaru}, {2822, K::Kod},
    {2823, K::Skrot},   {2826, K::Kod},        {2840, K::Nazwa},     {2857, K::CKU},
    {2894, K::Kod},     {2896, K::Kod},        {2897, K::Kod},       {kNaKasie, K::TypTowaru},
    {kNaKasie, K::Kod}, {kNaKasie, K::Stawka}, {kNaKasie, K::Skrot}};

// Refusals of additional codes: the detail names the code. Refusals of short names may concern any code.
constexpr int kBledyKodow[] = {2826, 2827, 2828, 2830, 2895};
constexpr int kBledySkrotow[] = {2819, 2823, 2824};

// The name has no words, or every name made of it is taken.
const QString kBrakSkrotu = u"Błąd nadania unikalnej nazwy skróconej"_s;

bool Jednym(std::span<const int> kody, int kod) {
  return std::find(kody.begin(), kody.end(), kod) != kody.end();
}

}  // namespace

OpisFormularza TFmVLTFormularzTowaru::Opis() {
  return {RodzajRekordu::Towary, kPola, kBledy};
}

TFmVLTFormularzTowaru::TFmVLTFormularzTowaru(QWidget* rodzic, Rozmowa& rozmowa, TDmVLTTowar& towar)
    : TFmVLTFormularzRekordu(rodzic, rozmowa, towar),
      m_towar(towar),
      m_ui(std::make_unique<Ui::FormularzTowaru>()) {
  m_ui->setupUi(this);
  Zbuduj(Opis());
  PokazSzczegoly();
  PolaczSkroty();
  PolaczTabele(*m_ui->tabelaKodow, *m_ui->bladKodow, *m_ui->DodajKod, *m_ui->UsunKod);
  PolaczTabele(*m_ui->tabelaDostawcow, *m_ui->bladDostawcow, *m_ui->DodajDostawce, *m_ui->UsunDostawce);
  setTabOrder(&Pole(K::Producent).Kontrolka(), m_ui->tabelaDostawcow);
  setTabOrder(m_ui->tabelaDostawcow, m_ui->DodajDostawce);
  setTabOrder(m_ui->DodajDostawce, m_ui->UsunDostawce);
}

TFmVLTFormularzTowaru::~TFmVLTFormularzTowaru() = default;

void TFmVLTFormularzTowaru::PokazSzczegoly() {
  KontekstSesji& sesja = m_towar.Sesja();
  m_ui->tabelaKodow->Pokaz(m_towar.Kody().Wszystkie());
  m_ui->tabelaDostawcow->Pokaz(sesja.baza, m_towar.Dostawcy());
  // Not the record's own: it would keep what a new good has before the run writes its stock.
  StanyTowaru stany;
  stany.Wczytaj(sesja.baza, m_towar.Id());
  m_ui->tabelaStanow->Pokaz(stany);

  auto& kategoria = KontrolkaPola<QComboBox>(K::KatId);
  const auto wybrana = [&kategoria] {
    const QVariant katId = kategoria.currentData();
    return katId.isValid() ? katId.toInt() : -1;
  };
  const auto pokaz = [this, wybrana] {
    m_ui->parametry->PokazKategorie(wybrana());
    m_ui->gbParametry->setVisible(!m_ui->parametry->Puste());
  };
  m_ui->parametry->Wczytaj(sesja, wybrana(), m_towar.Wartosci(), kategoria);
  pokaz();
  connect(&kategoria, &QComboBox::currentIndexChanged, this, pokaz);
}

void TFmVLTFormularzTowaru::PolaczTabele(TabelaSzczegolow& tabela, EtykietaBledu& blad, QPushButton& dodaj,
                                         QPushButton& usun) {
  const auto sprawdz = [&tabela, &blad] { tabela.Sprawdz(blad); };
  connect(&tabela, &QTableWidget::itemChanged, this, sprawdz);
  connect(&dodaj, &QPushButton::clicked, &tabela, [&tabela] { tabela.DodajWiersz(); });
  connect(&usun, &QPushButton::clicked, this, [&tabela, sprawdz] {
    tabela.UsunBiezacy();
    sprawdz();
  });
}

void TFmVLTFormularzTowaru::PolaczSkroty() {
  auto* const zaproponuj = new QPushButton(u"&Zaproponuj"_s);
  zaproponuj->setObjectName(u"ZaproponujSkrot"_s);
  zaproponuj->setAccessibleName(u"Zaproponuj skrót"_s);
  zaproponuj->setAutoDefault(false);
  Pole(K::Skrot).Dolacz(*zaproponuj);
  setTabOrder(&Pole(K::Skrot).Kontrolka(), zaproponuj);
  connect(zaproponuj, &QPushButton::clicked, this, [this] { ZaproponujSkrot(-1); });
  // As the record does: a good that gets a name has a short name at once.
  auto& nazwa = KontrolkaPola<QLineEdit>(K::Nazwa);
  connect(&nazwa, &QLineEdit::editingFinished, this, [this, &nazwa] {
    const bool brakSkrotu = KontrolkaPola<QLineEdit>(K::Skrot).text().trimmed().isEmpty();
    if (nazwa.isModified() && brakSkrotu) ZaproponujSkrot(-1);
  });

  connect(m_ui->ZaproponujSkrotKodu, &QPushButton::clicked, this, [this] {
    if (const int wiersz = m_ui->tabelaKodow->currentRow(); wiersz >= 0) ZaproponujSkrot(wiersz);
  });
}

void TFmVLTFormularzTowaru::ZaproponujSkrot(int wiersz) {
  TabelaKodow& tabela = *m_ui->tabelaKodow;
  auto& glowny = KontrolkaPola<QLineEdit>(K::Skrot);
  std::vector<QString> dodatkowe;
  dodatkowe.reserve(static_cast<size_t>(tabela.rowCount()));
  for (int i = 0; i < tabela.rowCount(); ++i) dodatkowe.push_back(tabela.Tekst(i, TabelaKodow::Skrot));
  Sprobuj([&] {
    const auto skrot = m_towar.ZaproponujSkrot(KontrolkaPola<QLineEdit>(K::Nazwa).text(),
                                               {glowny.text(), dodatkowe}, wiersz);
    if (!skrot && wiersz < 0)
      Pole(K::Skrot).PokazBlad(kBrakSkrotu);
    else if (!skrot)
      m_ui->bladKodow->Pokaz(tabela, kBrakSkrotu);
    else if (wiersz < 0)
      glowny.setText(*skrot);
    else
      tabela.UstawTekst(wiersz, TabelaKodow::Skrot, *skrot);
  });
}

bool TFmVLTFormularzTowaru::PokazOdmoweSzczegolu(const EVLTWDError& blad) {
  const int wiersz = WierszOdmowy(blad);
  const bool kodyNaKasie = blad.MacCode() == kNaKasie && !m_towar.Kody().TakieSameJakWBazie();
  if (wiersz < 0 && !kodyNaKasie) return false;
  if (wiersz >= 0)
    m_ui->tabelaKodow->setCurrentCell(
        wiersz, Jednym(kBledySkrotow, blad.MacCode()) ? TabelaKodow::Skrot : TabelaKodow::Kod);
  m_ui->bladKodow->Pokaz(*m_ui->tabelaKodow, blad.Tresc());
  PrzejdzDo(*m_ui->tabelaKodow);
  return true;
}

// The additional code that was refused, -1 when it was none of them.
int TFmVLTFormularzTowaru::WierszOdmowy(const EVLTWDError& blad) const {
  const auto& kody = m_towar.Kody().Wszystkie();
  const auto wymieniony = [&](const KodDodatkowy& kod) {
    return blad.Detail() == kod.kod || blad.Detail().contains(u'\'' + kod.kod + u'\'');
  };
  if (Jednym(kBledyKodow, blad.MacCode())) {
    const auto kod = std::find_if(kody.begin(), kody.end(), wymieniony);
    return kod == kody.end() ? -1 : static_cast<int>(kod - kody.begin());
  }
  if (!Jednym(kBledySkrotow, blad.MacCode()) || m_towar.SkrotDoPoprawy(-1)) return -1;
  for (int i = 0; i < m_towar.Kody().Ilosc(); ++i)
    if (m_towar.SkrotDoPoprawy(i)) return i;
  return -1;
}

// Every fault is shown; the first one leads.
QWidget* TFmVLTFormularzTowaru::SprawdzSzczegoly() {
  QWidget* pierwszy = nullptr;
  const auto sprawdz = [&pierwszy](TabelaSzczegolow& tabela, EtykietaBledu& blad) {
    if (tabela.Sprawdz(blad)) return;
    tabela.PrzejdzDoWady();
    if (!pierwszy) pierwszy = &tabela;
  };
  sprawdz(*m_ui->tabelaKodow, *m_ui->bladKodow);
  if (QWidget* const parametr = m_ui->parametry->Sprawdz(); !pierwszy) pierwszy = parametr;
  sprawdz(*m_ui->tabelaDostawcow, *m_ui->bladDostawcow);
  return pierwszy;
}

void TFmVLTFormularzTowaru::WpiszSzczegoly() {
  if (auto kody = m_ui->tabelaKodow->Kody(); kody != m_towar.Kody().Wszystkie())
    m_towar.Kody().Ustaw(std::move(kody));
  m_ui->parametry->Wpisz(m_towar.Wartosci());
  m_ui->tabelaDostawcow->Wpisz(m_towar.Dostawcy());
}
