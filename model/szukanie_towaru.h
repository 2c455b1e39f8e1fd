#pragma once

#include <vector>

#include <QString>

class TVLTBazaDanych;
class TVLTBuforTowarow;

// A good that was found by one of its texts.
struct ZnalezionyTowar {
  int towId;
  QString nazwa;
  bool aktywny;
};

// Goods that have the text as main or additional code, by identifier and without repeats. A buffer whose miss
// is certain answers without the database; everything else is the database's word.
std::vector<ZnalezionyTowar> TowaryZKodem(TVLTBazaDanych& baza, const TVLTBuforTowarow* bufor,
                                          const QString& kod);
// Whether some other good than `wlasneId` may have the code; false is certain and cost no statement.
bool InnyTowarMozeMiecKod(const TVLTBuforTowarow* bufor, const QString& kod, int wlasneId);

// Goods that can be chosen as the packaging of another, by name.
std::vector<ZnalezionyTowar> AktywneOpakowania(TVLTBazaDanych& baza);

// "Kod 'X' jest już używany przez usunięty towar [17]: Nazwa"; `czego` is "Kod", "CKU".
QString OpisUzycia(const QString& czego, const QString& kod, const ZnalezionyTowar& towar);
