#include "shell/formularze/postac_pola.h"

#include <cmath>

#include <QLocale>

#include "model/katalog_bledow.h"
#include "model/kolumny.h"
#include "model/zakresy.h"
#include "platform/liczby.h"
#include "shell/formularze/pole_formularza.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kZlyFormat = 2405;
constexpr int kPozaZakresem = 2406;
constexpr int kMiejscCeny = 2;
constexpr double kProcentow = 100;
constexpr double kDokladnoscProcentu = 1e6;  // 0.29 * 100 is not 29
constexpr double kDokladnoscCeny = 1e4;      // a net price made of a gross one never ends
constexpr char16_t kFormatDaty[] = u"dd.MM.yyyy";

QString OpisBledu(int kod) {
  return katalog_bledow::Szukaj(katalog_bledow::Katalog::Dane, kod, {}).opis;
}

double Zaokraglona(double liczba, double dokladnosc) {
  return std::round(liczba * dokladnosc) / dokladnosc;
}

// People type either mark.
std::optional<double> CzytajLiczbe(const QString& tekst) {
  const QString liczba = tekst.trimmed().replace(u',', u'.');
  return liczba.isEmpty() ? 0 : liczby::Liczba(liczba, '.');
}

// Each returns what is wrong with the text and writes it when nothing is and there is where to.

QString Kwota(const QString& tekst, TMField* kolumna) {
  const auto kwota = CzytajLiczbe(tekst);
  if (!kwota) return OpisBledu(kZlyFormat);
  if (!KwotaWZakresie(*kwota)) return OpisBledu(kPozaZakresem);
  if (kolumna) kolumna->SetFloat(*kwota);
  return {};
}

// Percents of a person are fractions in the database.
QString Procent(const QString& tekst, TMField* kolumna) {
  if (QString wada = Kwota(tekst, kolumna); !wada.isEmpty()) return wada;
  if (kolumna) kolumna->SetFloat(kolumna->AsFloat() / kProcentow);
  return {};
}

QString Liczba(const QString& tekst, TMField* kolumna) {
  const QString cyfry = tekst.trimmed();
  const auto liczba = cyfry.isEmpty() ? 0 : liczby::Calkowita(cyfry);
  // Only too long to be read.
  const bool zaDuza = !liczba && !cyfry.contains(u'.') && liczby::Liczba(cyfry, '.');
  if (!liczba) return OpisBledu(zaDuza ? kPozaZakresem : kZlyFormat);
  if (kolumna) kolumna->SetInteger(*liczba);
  return {};
}

template <QString Jak(const QString&, TMField*)>
QString LubBrak(const QString& tekst, TMField* kolumna) {
  if (!tekst.trimmed().isEmpty()) return Jak(tekst, kolumna);
  if (kolumna) kolumna->Clear();
  return {};
}

QString Data(const QString& tekst, TMField* kolumna) {
  const QDate data = QDate::fromString(tekst.trimmed(), u"d.M.yyyy"_s);
  if (!data.isValid() && !tekst.trimmed().isEmpty()) return u"Podaj datę w postaci dd.mm.rrrr"_s;
  if (kolumna) PiszDate(*kolumna, data);
  return {};
}

QString Tekst(const QString& tekst, TMField* kolumna) {
  if (kolumna) kolumna->SetString(tekst);
  return {};
}

auto Znaczenie(RodzajPola rodzaj) -> QString (*)(const QString&, TMField*) {
  switch (rodzaj) {
    case RodzajPola::Kwota:
    case RodzajPola::Cena:
      return Kwota;
    case RodzajPola::KwotaLubBrak:
      return LubBrak<Kwota>;
    case RodzajPola::Procent:
      return Procent;
    case RodzajPola::Liczba:
      return Liczba;
    case RodzajPola::LiczbaLubBrak:
      return LubBrak<Liczba>;
    case RodzajPola::Data:
      return Data;
    default:
      return Tekst;
  }
}

}  // namespace

QString PokazLiczbe(double liczba, int najmniejMiejsc) {
  QString tekst = QString::number(liczba, 'f', QLocale::FloatingPointShortest);
  const qsizetype kropka = tekst.indexOf(u'.');
  const qsizetype miejsc = kropka < 0 ? 0 : tekst.size() - kropka - 1;
  if (miejsc < najmniejMiejsc) {
    if (kropka < 0) tekst += u'.';
    tekst += QString(najmniejMiejsc - miejsc, u'0');
  }
  return tekst.replace(u'.', QLatin1Char(liczby::SeparatorSystemu()));
}

QString PokazKolumne(RodzajPola rodzaj, const TMField& kolumna) {
  switch (rodzaj) {
    case RodzajPola::Kwota:
      return PokazLiczbe(kolumna.AsFloat());
    case RodzajPola::KwotaLubBrak:
      return kolumna.IsNull() ? QString() : PokazLiczbe(kolumna.AsFloat());
    case RodzajPola::Cena:
      return PokazLiczbe(Zaokraglona(kolumna.AsFloat(), kDokladnoscCeny), kMiejscCeny);
    case RodzajPola::Procent:
      return PokazLiczbe(Zaokraglona(kolumna.AsFloat() * kProcentow, kDokladnoscProcentu));
    case RodzajPola::Liczba:
      return QString::number(kolumna.AsInteger());
    case RodzajPola::LiczbaLubBrak:
      return kolumna.IsNull() ? QString() : QString::number(kolumna.AsInteger());
    case RodzajPola::Data:
      return CzytajDate(kolumna).toString(kFormatDaty);
    default:
      return kolumna.AsString();
  }
}

QString WadaTekstu(RodzajPola rodzaj, const QString& tekst) {
  return Znaczenie(rodzaj)(tekst, nullptr);
}

void WpiszTekst(RodzajPola rodzaj, const QString& tekst, TMField& kolumna) {
  Znaczenie(rodzaj)(tekst, &kolumna);
}
