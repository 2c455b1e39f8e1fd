#include "bench/baza.h"
#include "bench/dane.h"

namespace {

// Every good is told from its identifier what it gets, so that the same goods get the same.
constexpr const char* kInstrukcje[] = {
    "pragma synchronous = off",
    "pragma cache_size = -131072",
    "begin immediate",
    "insert into Magazyn (Nazwa) values ('Zaplecze'), ('Chłodnia')",
    "update Istw set StanMag = (TowId * 7 + MagId * 13) % 500 * 0.25 where (TowId + MagId) % 4 <> 0",

    "with recursive n (i) as (select 1 union all select i + 1 from n where i < 200)"
    " insert into Kontrahent (Nazwa, NIP, Dostawca, Producent)"
    " select 'Wytwórnia ' || i, printf('525-%03d-11-%02d', i, i % 100), 1, i % 2 from n",
    "insert into TowDostawca (TowId, KontrId, Kolejnosc)"
    " select TowId, 1 + TowId % 200, 0 from Towar where TowId % 10 <> 0"
    " union all select TowId, 1 + (TowId + 71) % 200, 1 from Towar where TowId % 3 = 0"
    " union all select TowId, 1 + (TowId + 31) % 200, 2 from Towar where TowId % 9 = 0",

    "with recursive n (i) as (select 1 union all select i + 1 from n where i < 20)"
    " insert into Kategoria (Nazwa) select 'Półka działu ' || i from n",
    "with recursive n (i) as (select 1 union all select i + 1 from n where i < 10)"
    " insert into Parametr (Nazwa, Typ, Od, Do)"
    " select iif(i % 2, 'Wielkość ', 'Zakres ') || i, iif(i % 2, 0, 1), iif(i % 2, 0, -5), iif(i % 2, 0, 40)"
    " from n",
    "with recursive n (i) as (select 0 union all select i + 1 from n where i < 3)"
    " insert into ParWartosc (ParId, Kolejnosc, Wartosc) select ParId, i, 'wartość ' || i"
    " from Parametr, n where Typ = 0",
    "insert into KatParam (KatId, ParId, Kolejnosc)"
    " select KatId, ParId, 10 - ParId from Kategoria, Parametr where (KatId + ParId) % 3 = 0",

    "update Towar set KatId = iif(TowId % 5, 1 + TowId % 20, null),"
    " Producent = iif(TowId % 7, 1 + TowId % 200, null), Marza = TowId % 400 * 0.001,"
    " HurtRabat = TowId % 30 * 0.005, NocNarzut = TowId % 3 * 0.05, CenaHurt = round(CenaDet * 0.9, 2),"
    " CenaNoc = round(CenaDet * 1.1, 2), CenaDod = round(CenaDet * 0.95, 2), PrefPLU = TowId % 900,"
    " TermWazn = TowId % 60, Opis1 = 'Przechowywać w chłodzie, partia ' || (TowId % 1000),"
    " Opis2 = iif(TowId % 2, 'Produkt krajowy', '')",
    "insert into TowWartosc (TowId, ParId, Wartosc)"
    " select T.TowId, P.ParId, T.TowId % iif(P.Typ = 0, 4, 30) from Towar T"
    " join KatParam K on K.KatId = T.KatId join Parametr P on P.ParId = K.ParId where T.TowId % 11 <> 0",
    "insert into KodDod (TowId, Kolejnosc, Skrot, Kod, PrefPLU)"
    " select TowId, 10, 'Zgrz. ' || TowId, printf('592%09d', TowId), 0 from Towar where TowId % 2 = 0"
    " union all select TowId, 11, '', printf('593%09d', TowId), TowId % 50 from Towar where TowId % 3 = 0",
    "commit",
    "pragma wal_checkpoint(truncate)",
};

}  // namespace

void DopiszDaneTowarow(const std::string& sciezka) {
  const sqlite::Baza baza = sqlite::Otworz(sciezka);
  for (const char* instrukcja : kInstrukcje) sqlite::Wykonaj(baza, instrukcja);
}
