#include "model/kolumny.h"

#include <cstdio>

#include <QAnyStringView>

#include "model/bledy.h"
#include "model/szerokosci.h"
#include "model/zakresy.h"

namespace {
constexpr char16_t kFormatCzasu[] = u"yyyy-MM-dd HH:mm:ss";
constexpr qsizetype kDlugoscDaty = 10;
}  // namespace

bool RownyTekst(const Wartosc& wartosc, const QString& tekst) {
  const std::string_view utf8 = wartosc.AsUtf8();
  return QAnyStringView(QUtf8StringView(utf8.data(), static_cast<qsizetype>(utf8.size()))) ==
         QAnyStringView(tekst);
}

int CzytajId(const TMField& pole) {
  return pole.IsNull() ? -1 : static_cast<int>(pole.AsInteger());
}

QDate CzytajDate(const Wartosc& wartosc) {
  return wartosc.IsNull() ? QDate() : QDate::fromString(wartosc.AsString().left(kDlugoscDaty), Qt::ISODate);
}

// Stored times carry no zone: the universal one keeps every hour of the year.
QDateTime CzytajCzas(const TMField& pole) {
  if (pole.IsNull()) return {};
  QDateTime czas = QDateTime::fromString(pole.AsString(), Qt::ISODate);
  czas.setTimeSpec(Qt::UTC);
  return czas;
}

void PiszId(TMField& pole, int id) {
  if (CzytajId(pole) == id || (id < 0 && CzytajId(pole) < 0)) return;
  if (id < 0)
    pole.Clear();
  else
    pole.SetInteger(id);
}

void PiszLiczbe(TMField& pole, long long liczba) {
  if (pole.AsInteger() != liczba) pole.SetInteger(liczba);
}

void PiszFlage(TMField& pole, bool flaga) {
  if ((pole.AsInteger() != 0) != flaga) pole.SetInteger(flaga ? 1 : 0);
}

void PiszKwote(TMField& pole, double kwota) {
  if (pole.AsFloat() != kwota) pole.SetFloat(kwota);
}

void PiszTekst(TMField& pole, const QString& tekst) {
  if (!RownyTekst(pole.Value(), tekst)) pole.SetString(tekst);
}

void PiszDate(TMField& pole, const QDate& data) {
  if (!data.isValid()) {
    if (CzytajDate(pole).isValid()) pole.Clear();
    return;
  }
  std::array<char, 32> tekst{};
  std::snprintf(tekst.data(), tekst.size(), "%04d-%02d-%02d 00:00:00", data.year(), data.month(), data.day());
  // The day is compared as text first: reading it costs many times as much.
  if (pole.Value().AsUtf8().starts_with(std::string_view(tekst.data(), kDlugoscDaty))) return;
  if (CzytajDate(pole) != data) pole.SetString(QString::fromLatin1(tekst.data()));
}

void PiszCzas(TMField& pole, const QDateTime& czas) {
  if (!czas.isValid())
    pole.Clear();
  else if (const QString tekst = czas.toString(kFormatCzasu); pole.AsString() != tekst)
    pole.SetString(tekst);
}

// Texts that an embedded database took in long ago stay where they are.
void WymagajMiejsca(const char* tabela, const TMCustomDataSet& wiersz) {
  for (std::size_t i = 0; i < wiersz.FieldCount(); ++i) {
    const TMField& pole = wiersz.Field(i);
    const TypPola typ = pole.Value().Typ();
    if ((typ == TypPola::Calkowite && !LiczbaWZakresie(pole.AsInteger())) ||
        (typ == TypPola::Dziesietne && !KwotaWZakresie(pole.AsFloat())))
      throw EVLTWDError(2006);
    if (const std::string_view utf8 = pole.Value().AsUtf8();
        typ == TypPola::Tekst && utf8.size() > kZnakowTekstu && pole.Zmienione())
      WymagajDlugosci(tabela, pole.FieldName(), utf8);
  }
}
