#pragma once

// Table codes of the change log's lines (DziennikZmian.Tabela).
enum TabelaDziennika : int {
  kDziennikTowar = 1,
  kDziennikAsortyment = 2,
  kDziennikJednostka = 3,
  kDziennikKategoria = 4,
  kDziennikParametr = 5,
  kDziennikMagazyn = 6,
  kDziennikKontrahent = 7,
  kDziennikStawkiVat = 101
};
