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

    "update KatParam set Kolejnosc = 10 - ParId",
    "delete from TowWartosc where TowId % 11 = 0",
    "delete from TowDostawca where TowId % 10 = 0",

    R"(update Towar set KatId = iif(TowId % 5, KatId, null),
       Producent = iif(TowId % 7, 1 + TowId % 200, null), Marza = TowId % 400 * 0.001,
       HurtRabat = TowId % 30 * 0.005, NocNarzut = TowId % 3 * 0.05, CenaHurt = round(CenaDet * 0.9, 2),
       CenaNoc = round(CenaDet * 1.1, 2), CenaDod = round(CenaDet * 0.95, 2), PrefPLU = TowId % 900,
       TermWazn = TowId % 60, Opis1 = 'Przechowywać w chłodzie, partia ' || (TowId % 1000),
       Opis2 = iif(TowId % 2, 'Produkt krajowy', ''))",
    R"(insert into KodDod (TowId, Kolejnosc, Skrot, Kod, PrefPLU)
       select TowId, 10, 'Zgrz. ' || TowId, printf('592%09d', TowId), 0 from Towar where TowId % 2 = 0
       union all select TowId, 11, '', printf('593%09d', TowId), TowId % 50 from Towar where TowId % 3 = 0)",
    "commit",
    "pragma wal_checkpoint(truncate)",
};

}  // namespace

void DopiszDaneTowarow(const std::string& sciezka) {
  const sqlite::Baza baza = sqlite::Otworz(sciezka);
  for (const char* instrukcja : kInstrukcje) sqlite::Wykonaj(baza, instrukcja);
}
