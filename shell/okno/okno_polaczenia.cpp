#include "shell/okno/okno_polaczenia.h"

#include <utility>

#include <QDir>
#include <QFileInfo>
#include <QPushButton>
#include <QStandardPaths>

#include <ui_okno_polaczenia.h>

#include "shell/kontrolki/filtry_plikow.h"
#include "shell/rozmowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString ProponowanyPlik() {
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  return QDir::toNativeSeparators(folder.filePath(u"zorvik.db"_s));
}

QString Wstep(const DotychczasowaBaza& dotychczasowa) {
  if (!dotychczasowa.adres)
    return u"Z jaką bazą danych ma pracować program? Odpowiedź zostanie zapamiętana."_s;
  if (dotychczasowa.powod)
    return u"Nie udało się połączyć z bazą danych, z którą program pracował ostatnio. Gdy przyczyna zniknie, "
           u"wystarczy spróbować ponownie; można też wskazać inną bazę."_s;
  return u"Z jaką bazą danych ma dalej pracować program? Odpowiedź zostanie zapamiętana, a okno wczyta "
         u"ustawienia tej bazy. Zmiany opcji, których nie zapisano, przepadną."_s;
}

}  // namespace

QString AdresBazy(const ParametryPolaczenia& parametry) {
  if (parametry.rodzaj == ParametryPolaczenia::Rodzaj::Sqlite)
    return QDir::toNativeSeparators(QFileInfo(parametry.cel).absoluteFilePath());
  return parametry.MaHaslo() ? parametry.Opis() : parametry.Tekst();
}

Tfrm_polaczenie::Tfrm_polaczenie(QWidget* rodzic, Rozmowa& rozmowa, DotychczasowaBaza dotychczasowa,
                                 ProbaPolaczenia proba)
    : QDialog(rodzic),
      m_rozmowa(rozmowa),
      m_dotychczasowa(std::move(dotychczasowa)),
      m_proba(std::move(proba)),
      m_ui(std::make_unique<Ui::Tfrm_polaczenie>()),
      m_adresDrugiego(ProponowanyPlik()) {
  m_ui->setupUi(this);
  m_ui->lbWstep->setText(Wstep(m_dotychczasowa));
  m_ui->przyciski->button(QDialogButtonBox::Ok)->setDefault(true);
  m_ui->przyciski->button(QDialogButtonBox::Cancel)->setText(u"&Anuluj"_s);
  m_ui->rbInnaBaza->setChecked(true);
  if (m_dotychczasowa.adres) m_ui->EdBaza->setText(AdresBazy(*m_dotychczasowa.adres));
  if (m_dotychczasowa.powod)
    PokazPowod(*m_dotychczasowa.powod);
  else
    m_ui->lbPowod->hide();
  Odswiez();
  connect(m_ui->rbNowaBaza, &QRadioButton::toggled, this, [this] { ZmienRodzaj(); });
  connect(m_ui->EdBaza, &QLineEdit::textChanged, this, [this] { Odswiez(); });
  connect(m_ui->Wybierz, &QPushButton::clicked, this, [this] { WybierzPlik(); });
  connect(m_ui->przyciski, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(m_ui->przyciski, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

Tfrm_polaczenie::~Tfrm_polaczenie() = default;

bool Tfrm_polaczenie::NowaBaza() const {
  return m_ui->rbNowaBaza->isChecked();
}

QString Tfrm_polaczenie::Baza() const {
  return m_ui->EdBaza->text().trimmed();
}

std::optional<ParametryPolaczenia> Tfrm_polaczenie::Parametry() const {
  const auto& dotychczasowa = m_dotychczasowa.adres;
  if (dotychczasowa && m_ui->EdHaslo->text().isEmpty() && Baza() == AdresBazy(*dotychczasowa))
    return dotychczasowa;
  auto parametry = ParametryPolaczenia::ZTekstu(Baza());
  if (parametry) parametry->UstawHaslo(m_ui->EdHaslo->text());
  return parametry;
}

void Tfrm_polaczenie::ZmienRodzaj() {
  const QString adres = std::exchange(m_adresDrugiego, m_ui->EdBaza->text());
  m_ui->EdBaza->setText(adres);
  Odswiez();
}

void Tfrm_polaczenie::Odswiez() {
  const auto parametry = ParametryPolaczenia::ZTekstu(Baza());
  const bool serwer = parametry && parametry->rodzaj == ParametryPolaczenia::Rodzaj::Odbc;
  m_ui->lbPodpowiedz->setText(
      serwer ? u"Źródło danych ODBC albo opis połączenia, na przykład odbc:DSN=sklep;UID=zorvik. "_s +
                   (NowaBaza() ? u"Baza danych musi być pusta."_s : QString())
      : NowaBaza() ? u"Powstanie nowy plik ze stawkami VAT, regułami nazw skróconych "
                     u"i parametrami kodów, bez towarów i kontrahentów."_s
                   : u"Ścieżka pliku bazy danych programu albo odbc: i nazwa źródła danych serwera."_s);
  m_ui->lbHaslo->setVisible(serwer);
  m_ui->EdHaslo->setVisible(serwer);
  QPushButton& polacz = *m_ui->przyciski->button(QDialogButtonBox::Ok);
  polacz.setEnabled(parametry.has_value());
  polacz.setText(NowaBaza()             ? u"&Załóż bazę"_s
                 : Baza() == m_nieudany ? u"&Spróbuj ponownie"_s
                                        : u"&Połącz"_s);
}

void Tfrm_polaczenie::PokazPowod(const QString& powod) {
  m_nieudany = Baza();
  m_ui->lbPowod->setText(u"⚠ "_s + powod);
  m_ui->lbPowod->show();
  Odswiez();
  adjustSize();
}

void Tfrm_polaczenie::accept() {
  const auto parametry = Parametry();
  if (!parametry) return;
  const auto& dotychczasowa = m_dotychczasowa.adres;
  if (NowaBaza() && dotychczasowa &&
      !m_rozmowa.CzyTak(this, {u"Uwaga"_s,
                               u"Czy założyć nową bazę danych, bez towarów i kontrahentów, i pracować "
                               u"z nią zamiast z bazą\n"_s +
                                   AdresBazy(*dotychczasowa)}))
    return;
  if (const auto powod = m_proba(*parametry, NowaBaza())) return PokazPowod(*powod);
  QDialog::accept();
}

void Tfrm_polaczenie::WybierzPlik() {
  const Rozmowa::WyborPliku wybor{.tytul = NowaBaza() ? u"Nowa baza danych"_s : u"Baza danych"_s,
                                  .sciezka = Baza().isEmpty() ? QDir::homePath() : Baza(),
                                  .filtr = Filtr({{u"Bazy danych (*.db)", u"db"}}),
                                  .rozszerzenie = u"db"_s};
  const auto plik =
      NowaBaza() ? m_rozmowa.WybierzDoZapisu(this, wybor) : m_rozmowa.WybierzDoOdczytu(this, wybor);
  if (plik) m_ui->EdBaza->setText(QDir::toNativeSeparators(*plik));
}
