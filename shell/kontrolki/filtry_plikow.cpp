#include "shell/kontrolki/filtry_plikow.h"

using namespace Qt::Literals::StringLiterals;

QString Filtr(std::initializer_list<PlikiFiltru> rodzaje) {
  QString filtr;
  for (const PlikiFiltru& rodzaj : rodzaje) {
    const QString rozszerzenie = QStringView(rodzaj.rozszerzenie).toString();
    filtr += QStringView(rodzaj.podpis);
    filtr += u" (*."_s + rozszerzenie + u" *."_s + rozszerzenie.toUpper() + u");;"_s;
  }
  return filtr + u"Wszystkie pliki (*.*) (*)"_s;
}

QString FiltrImportu(TypPliku typ) {
  return typ == TypPliku::DBase
             ? Filtr({{u"Pliki DBF (*.dbf)", u"dbf"}})
             : Filtr({{u"Pliki tekstowe (*.txt)", u"txt"}, {u"Pliki CSV (*.csv)", u"csv"}});
}

QString RozszerzenieImportu(TypPliku typ) {
  return typ == TypPliku::DBase ? u"dbf"_s : u"txt"_s;
}
