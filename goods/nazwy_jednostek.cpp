#include "goods/nazwy_jednostek.h"

#include <string_view>

namespace {

struct Pisownia {
  std::u16string_view pisownia;
  std::u16string_view jednostka;
};

// The canonical forms are not uniform in their dots: dictionaries of existing databases hold exactly these.
constexpr Pisownia kPisownie[] = {
    {u"kg", u"kg"},        {u"kg.", u"kg"},        {u"szt", u"szt"},         {u"szt.", u"szt"},
    {u"m", u"m"},          {u"m.", u"m"},          {u"metr", u"m"},          {u"metry", u"m"},
    {u"m.b.", u"m.b."},    {u"m.b", u"m.b."},      {u"mb", u"m.b."},         {u"mb.", u"m.b."},
    {u"l", u"l"},          {u"l.", u"l"},          {u"litr", u"l"},          {u"litry", u"l"},
    {u"kompl", u"kpl."},   {u"kompl.", u"kpl."},   {u"komp", u"kpl."},       {u"komp.", u"kpl."},
    {u"komplet", u"kpl."}, {u"komplety", u"kpl."}, {u"opak", u"opak"},       {u"opak.", u"opak"},
    {u"op", u"opak"},      {u"op.", u"opak"},      {u"opakowanie", u"opak"}, {u"opakowania", u"opak"},
};

}  // namespace

void NormalizujJednostke(QString& nazwa) {
  for (const Pisownia& p : kPisownie) {
    if (nazwa.compare(QStringView(p.pisownia), Qt::CaseInsensitive) != 0) continue;
    nazwa = QStringView(p.jednostka).toString();
    return;
  }
}
