#include "ustawienia/pozycje_stanow.h"

#include "database/schemat.h"
#include "model/kontekst.h"
#include "model/parametry_systemu.h"
#include "tests/wspolne/baza_testowa.h"

namespace {

using namespace Qt::Literals::StringLiterals;

TEST(PozycjeStanow, PozycjaEksportuToIdentyfikatorMagazynuPlusJeden) {
  BazaTestowa b;
  UtworzBaze(b.baza, {});
  ParametrySystemu parametry;
  KontekstSesji sesja{b.baza, parametry};
  b.baza.ExecSQL("delete from Magazyn");
  EXPECT_EQ(PozycjeImportuStanow(sesja), QStringList{u"NIE"_s});
  EXPECT_EQ(PozycjeEksportuStanow(sesja), (QStringList{u"NIE"_s, u"Ogółem"_s}));
  b.baza.ExecSQL("insert into Magazyn (MagId, Nazwa) values (1, 'Sklep'), (4, ' '), (3, 'Hurt')");
  EXPECT_EQ(PozycjeEksportuStanow(sesja),
            (QStringList{u"NIE"_s, u"Ogółem"_s, u"Magazyn 1 – Sklep"_s, u"Magazyn 2"_s, u"Magazyn 3 – Hurt"_s,
                         u"Magazyn 4"_s}));
  EXPECT_EQ(PozycjeImportuStanow(sesja).size(), 4);
  EXPECT_TRUE(PozycjeImportuStanow(sesja).contains(u"Magazyn 4"_s));
}

}  // namespace
