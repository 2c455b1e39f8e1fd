#include "app/wynik_json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "run/przebieg.h"

using namespace Qt::Literals::StringLiterals;

std::string WynikJson(std::u16string_view operacja, std::u16string_view koniec,
                      std::span<const PozycjaJson> liczniki, const WynikPrzebiegu& wynik,
                      const std::vector<Komunikat>& pokazane) {
  QJsonArray komunikaty;
  for (const Komunikat& komunikat : pokazane)
    komunikaty.append(QJsonObject{{u"tytul"_s, komunikat.naglowek}, {u"tekst"_s, komunikat.tekst}});
  QJsonObject obiekt{
      {u"operacja"_s, QStringView(operacja).toString()},
      {u"koniec"_s, QStringView(koniec).toString()},
      {u"plikPominietych"_s, wynik.plikPominietych},
      {u"komunikaty"_s, komunikaty},
      {u"czasSekund"_s, wynik.sekund},
  };
  for (const PozycjaJson& pozycja : liczniki)
    obiekt.insert(QStringView(pozycja.klucz), wynik.liczniki[pozycja.licznik]);
  return QJsonDocument(obiekt).toJson(QJsonDocument::Compact).toStdString() + '\n';
}
