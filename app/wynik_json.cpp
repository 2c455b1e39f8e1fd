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
  QJsonArray uwagi;
  for (const Uwaga& uwaga : wynik.uwagi) {
    QJsonArray rekordy;
    for (const int rekord : uwaga.rekordy) rekordy.append(rekord);
    uwagi.append(QJsonObject{{u"rodzaj"_s, uwaga.NazwaRodzaju()},
                             {u"tekst"_s, uwaga.tekst},
                             {u"ile"_s, uwaga.ile},
                             {u"rekordy"_s, rekordy}});
  }
  QJsonObject obiekt{
      {u"operacja"_s, QStringView(operacja).toString()},
      {u"koniec"_s, QStringView(koniec).toString()},
      {u"plikPominietych"_s, wynik.plikPominietych},
      {u"komunikaty"_s, komunikaty},
      {u"uwagi"_s, uwagi},
      {u"czasSekund"_s, wynik.sekund},
  };
  for (const PozycjaJson& pozycja : liczniki)
    obiekt.insert(QStringView(pozycja.klucz), wynik.liczniki[pozycja.licznik]);
  return QJsonDocument(obiekt).toJson(QJsonDocument::Compact).toStdString() + '\n';
}
