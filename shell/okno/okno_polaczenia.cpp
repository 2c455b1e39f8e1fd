#include "shell/okno/okno_polaczenia.h"

#include <QDir>
#include <QPushButton>
#include <QStandardPaths>

#include <ui_okno_polaczenia.h>

#include "shell/rozmowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString ProponowanyPlik() {
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  return QDir::toNativeSeparators(folder.filePath(u"zorvik.db"_s));
}

}  // namespace

Tfrm_polaczenie::Tfrm_polaczenie(QWidget* rodzic, Rozmowa& rozmowa)
    : QDialog(rodzic), m_rozmowa(rozmowa), m_ui(std::make_unique<Ui::Tfrm_polaczenie>()) {
  m_ui->setupUi(this);
  m_ui->przyciski->button(QDialogButtonBox::Ok)->setText(u"&OK"_s);
  m_ui->przyciski->button(QDialogButtonBox::Cancel)->setText(u"&Anuluj"_s);
  m_ui->EdBaza->setText(ProponowanyPlik());
  m_ui->rbNowaBaza->setChecked(true);
  Odswiez();
  connect(m_ui->rbNowaBaza, &QRadioButton::toggled, this, [this] {
    m_ui->EdBaza->setText(NowaBaza() ? ProponowanyPlik() : QString());
    Odswiez();
  });
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
  auto parametry = ParametryPolaczenia::ZTekstu(Baza());
  if (parametry) parametry->UstawHaslo(m_ui->EdHaslo->text());
  return parametry;
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
  m_ui->przyciski->button(QDialogButtonBox::Ok)->setEnabled(parametry.has_value());
}

void Tfrm_polaczenie::WybierzPlik() {
  const Rozmowa::WyborPliku wybor{.tytul = NowaBaza() ? u"Nowa baza danych"_s : u"Baza danych"_s,
                                  .sciezka = Baza().isEmpty() ? QDir::homePath() : Baza(),
                                  .filtr = u"Bazy danych (*.db) (*.db);;Wszystkie pliki (*.*) (*)"_s,
                                  .rozszerzenie = u"db"_s};
  const auto plik =
      NowaBaza() ? m_rozmowa.WybierzDoZapisu(this, wybor) : m_rozmowa.WybierzDoOdczytu(this, wybor);
  if (plik) m_ui->EdBaza->setText(QDir::toNativeSeparators(*plik));
}

std::optional<ParametryPolaczenia> ZapytajOPolaczenie(QWidget* rodzic, Rozmowa& rozmowa,
                                                      const TworzenieBazy& utworz) {
  Tfrm_polaczenie okno(rodzic, rozmowa);
  while (rozmowa.Pokaz(okno) == QDialog::Accepted) {
    const auto parametry = okno.Parametry();
    if (!parametry) continue;
    if (!okno.NowaBaza()) return parametry;
    const std::optional<Komunikat> odmowa = utworz(*parametry);
    if (!odmowa) return parametry;
    rozmowa.Powiedz(&okno, *odmowa);
  }
  return std::nullopt;
}
