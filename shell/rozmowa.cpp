#include "shell/rozmowa.h"

#include <QDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QPushButton>

#include "platform/nazwa_pliku.h"
#include "platform/tozsamosc_pliku.h"
#include "platform/wyjatek.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct NazwaPrzycisku {
  Rozmowa::Przycisk przycisk;
  std::u16string_view nazwa;
};

constexpr NazwaPrzycisku kNazwy[] = {{QMessageBox::Ok, u"&OK"},          {QMessageBox::Yes, u"&Tak"},
                                     {QMessageBox::No, u"&Nie"},         {QMessageBox::Cancel, u"&Anuluj"},
                                     {QMessageBox::Abort, u"&Przerwij"}, {QMessageBox::Retry, u"Po&nów"},
                                     {QMessageBox::Ignore, u"&Ignoruj"}};

constexpr Rozmowa::Przycisk kUcieczki[] = {QMessageBox::Cancel, QMessageBox::No, QMessageBox::Abort};

// The dialog does not list names that are no UTF-8, but takes them typed with "?".
std::optional<QString> Wybrany(QFileDialog& okno) {
  if (okno.exec() != QDialog::Accepted || okno.selectedFiles().isEmpty()) return std::nullopt;
  return OdszukajNazwe(okno.selectedFiles().constFirst());
}

// Qt would add the extension to the name of an existing file too.
QString IstniejacyLubZRozszerzeniem(const QString& plik, const QString& rozszerzenie) {
  const auto istnieje = [](const QString& sciezka) {
    return RodzajPlikuSciezki(sciezka) != RodzajPliku::Brak;
  };
  if (rozszerzenie.isEmpty() || istnieje(plik) || QFileInfo(plik).fileName().contains(u'.')) return plik;
  const QString wielkimi = plik + u'.' + rozszerzenie.toUpper();
  return istnieje(wielkimi) ? wielkimi : plik + u'.' + rozszerzenie;
}

void Przygotuj(QFileDialog& okno, const Rozmowa::WyborPliku& wybor) {
  okno.setOption(QFileDialog::HideNameFilterDetails);
  okno.setNameFilter(wybor.filtr);
  const QFileInfo plik(wybor.sciezka);
  okno.setDirectory(plik.isDir() ? plik.absoluteFilePath() : plik.absolutePath());
  if (!plik.isDir()) okno.selectFile(plik.fileName());
  // The program puts its own questions.
  okno.setOption(QFileDialog::DontConfirmOverwrite);
}

}  // namespace

Rozmowa::~Rozmowa() = default;

Rozmowa::Przycisk Rozmowa::Zapytaj(QWidget* rodzic, const Komunikat& komunikat, Ikona ikona,
                                   Przyciski przyciski, Przycisk domyslny) {
  QMessageBox okno(ikona, komunikat.naglowek, komunikat.tekst, przyciski, rodzic);
  okno.setTextFormat(Qt::PlainText);
  for (const auto& [przycisk, nazwa] : kNazwy)
    if (QAbstractButton* const kontrolka = okno.button(przycisk))
      kontrolka->setText(QStringView(nazwa).toString());
  okno.setDefaultButton(domyslny);
  for (const Przycisk ucieczka : kUcieczki)
    if (przyciski & ucieczka) {
      okno.setEscapeButton(ucieczka);
      break;
    }
  const int wynik = Pokaz(okno);
  return wynik == QMessageBox::NoButton ? domyslny : static_cast<Przycisk>(wynik);
}

std::optional<QString> Rozmowa::PodajTekst(QWidget* rodzic, const Komunikat& pytanie,
                                           const QString& proponowany) {
  QInputDialog okno(rodzic);
  okno.setWindowTitle(pytanie.naglowek);
  okno.setLabelText(pytanie.tekst);
  okno.setTextValue(proponowany);
  okno.setOkButtonText(u"OK"_s);
  okno.setCancelButtonText(u"Anuluj"_s);
  if (Pokaz(okno) != QDialog::Accepted) return std::nullopt;
  return okno.textValue();
}

std::optional<QString> Rozmowa::WybierzDoOdczytu(QWidget* rodzic, const WyborPliku& wybor) {
  QFileDialog okno(rodzic, wybor.tytul);
  okno.setAcceptMode(QFileDialog::AcceptOpen);
  okno.setFileMode(QFileDialog::AnyFile);
  Przygotuj(okno, wybor);
  const std::optional<QString> plik = Wybrany(okno);
  return plik ? std::optional(IstniejacyLubZRozszerzeniem(*plik, wybor.rozszerzenie)) : std::nullopt;
}

std::optional<QString> Rozmowa::WybierzDoZapisu(QWidget* rodzic, const WyborPliku& wybor) {
  QFileDialog okno(rodzic, wybor.tytul);
  okno.setAcceptMode(QFileDialog::AcceptSave);
  okno.setDefaultSuffix(wybor.rozszerzenie);
  Przygotuj(okno, wybor);
  return Wybrany(okno);
}

int Rozmowa::Pokaz(QDialog& dialog) {
  return dialog.exec();
}

void Rozmowa::Powiedz(QWidget* rodzic, const Komunikat& komunikat, Ikona ikona) {
  Zapytaj(rodzic, komunikat, ikona, QMessageBox::Ok, QMessageBox::Ok);
}

bool Rozmowa::CzyTak(QWidget* rodzic, const Komunikat& pytanie) {
  return Zapytaj(rodzic, pytanie, Ikona::Question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
         QMessageBox::Yes;
}

void Rozmowa::PokazBlad(QWidget* rodzic, const EMException& blad) {
  constexpr Ikona kIkony[] = {Ikona::Critical, Ikona::Warning, Ikona::Information};
  Powiedz(rodzic, {blad.Naglowek(), TrescZPrzyczyna(blad)}, kIkony[static_cast<int>(blad.Klasa())]);
}
