#include "model/katalog_bledow.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace katalog_bledow {
namespace {

// Both catalogues are sorted by code.
constexpr PozycjaKatalogu kBledyDanych[] = {
    {2001, u"Brak obiektu w bazie danych", u"Nie powiodła się próba odczytu rekordu z tabeli w bazie danych"},
    {2002, u"Brak połączenia z bazą", u"Sesja nie jest otwarta"},
    {2003, u"Pozycja listy poza zakresem",
     u"Lista nieaktywna lub przekroczony zakres listy.\r\nWartość indeksu: ", Forma::ZeSzczegolem},
    {2004, u"Nie można utworzyć elementu listy",
     u"Wystąpił błąd podczas tworzenia elementu listy lub odczytu danych z bazy"},
    {2005, u"Brak formatu kodu ważonego w bazie danych",
     u"Nie powiodła się próba odczytu rekordu z tabeli w bazie danych"},
    {2006, u"Przekroczony limit ilości lub kwoty",
     u"Wielkość zapisywana do bazy przekracza dopuszczalny zakres pola"},
    {2007, u"Nie można zapisać towaru",
     u"Podczas zapisu towaru wystąpił błąd. Więcej informacji w poprzednich komunikatach"},
    {2008, u"Nie znaleziono parametru",
     u"W programie użyty został identyfikator nieobsługiwanego parametru konfiguracji"},
    {2009, u"Pozycja linii dokumentu poza zakresem"},
    {2010, u"Brak odpowiedniego okna wykazu"},
    {2011, u"Błąd podczas analizy importu z kasy"},
    {2012, u"Błąd w pliku importu z kasy"},
    {2013, u"Błąd w linii PLU pliku importu z kasy"},
    {2014, u"Błąd w linii PLU pliku importu z kasy"},
    {2015, u"Błąd w linii PLU pliku importu z kasy"},
    {2016, u"Błąd w linii opcji pliku importu z kasy"},
    {2017, u"Niekompletny plik importu z kasy"},
    {2018, u"Błąd informacji finansowej w pliku importu z kasy"},
    {2019, u"Błąd serwera wydruku kodów kreskowych"},
    {2020, u"Błąd wartości pola w pliku listy"},
    {2021, u"Błąd wartości pola w pliku importowym", u"Pole: ", Forma::ZeSzczegolem},
    {2022, u"Brak wymaganego pola 'Kod' w pozycji towarowej pliku EDI"},
    {2024, u"Brak wymaganego pola 'Stawka' w pozycji towarowej pliku EDI"},
    {2025, u"Pozycja linii paragonu poza zakresem"},
    {2026, u"Pozycja linii wzorca poza zakresem"},
    {2027, u"Niewłaściwy status zlecenia"},
    {2028, u"Niewłaściwy status dla nowego zlecenia"},
    {2029, u"Brak implementacji funkcji"},
    {2030, u"Błąd obsługi funkcji 'callback'"},
    {2031, u"Brak kopii obiektu ze sklepu w bazie danych centrali"},
    {2032, u"Typ obiektu nie podlega replikacji ze sklepu do centrali"},
    {2033, u"Nie można modyfikować kopii ze sklepu"},
    {2034, u"Nieprawidłowy identyfikator sklepu lub kopii elementu"},
    {2040, u"Tekst nie mieści się w polu", {}, Forma::Szczegol},
    {2401, u"Błąd wprowadzania stawki VAT", u"Dopuszczalne wartości stawki VAT: 0..100 % oraz ZW"},
    {2402, u"Błąd wprowadzania wartości marży, narzutu albo rabatu"},
    {2404, u"Błąd wprowadzania kodu kreskowego",
     u"Wpisany lub zeskanowany kod kreskowy nie jest zgodny z obsługiwanymi przez program formatami kodów "
     u"kreskowych:\r\n",
     Forma::ZeSzczegolem},
    {2405, u"Błąd wprowadzania ilości lub kwoty", u"Błąd formatu wprowadzanej wielkości"},
    {2406, u"Błąd wprowadzania ilości lub kwoty", u"Wprowadzana wielkość przekracza dopuszczalny zakres"},
    {2407, u"Błąd wprowadzania licznika"},
    {2408, u"Błąd wprowadzania końcówki ceny dla marżownika"},
    {2409, u"Już jest zakres marżownika zaczynający się od tej ceny"},
    {2410, u"Błąd wprowadzania ceny początkowej marżownika"},
    {2411, u"Za dużo końcówek marżownika"},
    {2412, u"Nieprawidłowa definicja zakresu marżownika"},
    {2801, u"Niewystarczające uprawnienia", u"Tej zmiany może dokonać tylko użytkownik o uprawnieniu ",
     Forma::ZeSzczegolem},
    {2802, u"Obiekt już został usunięty", u"Nie można powtórnie usunąć elementu"},
    {2803, u"Obiekt nie został usunięty", u"Nie można przywrócić nieusuniętego elementu"},
    {2804, u"Nie można usunąć samego siebie"},
    {2805, u"Do usuwanego magazynu są przydzielone urządzenia kasowe"},
    {2806, u"Dla usuwanego magazynu znaleziono dokumenty"},
    {2807, u"Zaznaczone dokumenty są powiązane z różnymi kontrahentami"},
    {2808, u"Asortyment jest przydzielony do kasy"},
    {2809, u"Asortyment nie jest pusty"},
    {2810, u"Jednostka miary jest używana"},
    {2813, u"Nie wybrano asortymentu",
     u"Przed zapisem do bazy nowego towaru wybierz asortyment, w którym ten towar zostanie umieszczony"},
    {2814, u"Nie wybrano jednostki miary",
     u"Przed zapisem do bazy nowego towaru wybierz dla niego jednostkę miary"},
    {2815, u"Nie wybrano stawki VAT", u"Przed zapisem do bazy nowego towaru wybierz dla niego stawkę VAT"},
    {2816, u"Nie podano kodu głównego",
     u"Towar musi mieć podany główny kod, po którym może być identyfikowany na kasach"},
    {2818, u"Brak wybranego opakowania"},
    {2819, u"Nazwa skrócona towaru jest już używana przez inny towar", {}, Forma::Szczegol},
    {2820, u"Towar był wysyłany na kasy"},
    {2821, u"Tylko kod główny towaru może być kodem ważonym",
     u"Wprowadzony kod główny jest kodem ważonym, a status towaru jest inny niż \"towar\""},
    {2822, u"Kod główny towaru jest już używany przez inny towar", {}, Forma::Szczegol},
    {2823, u"Niepoprawna nazwa skrócona towaru", {}, Forma::Szczegol},
    {2824, u"Wpisano taką samą nazwę skróconą dla dwóch kodów towaru", {}, Forma::Szczegol},
    {2826, u"Błąd sumy kontrolnej kodu EAN", {}, Forma::Zlozony},
    {2827, u"Jeden z kodów dodatkowych jest kodem ważonym",
     u"Wśród kodów dodatkowych towaru nie może być kodu ważonego."},
    {2828, u"Jeden z kodów dodatkowych pokrywa się z kodem głównym",
     u"Należy usunąć kod główny spośród kodów dodatkowych lub zmienić kod główny."},
    {2830, u"Jeden z kodów dodatkowych jest już używany przez inny towar", {}, Forma::Szczegol},
    {2831, u"Brak identyfikatora użytkownika"},
    {2832, u"Identyfikator użytkownika wykorzystany"},
    {2833, u"Brak nazwy asortymentu", u"Nie można zapisać asortymentu z pustą nazwą"},
    {2834, u"Nazwa asortymentu wykorzystana", u"Już jest w bazie asortyment o tej nazwie"},
    {2835, u"Brak nazwy magazynu"},
    {2836, u"Nazwa magazynu wykorzystana"},
    {2837, u"Brak nazwy jednostki miary", u"Nie można zapisać jednostki miary z pustą nazwą"},
    {2838, u"Nazwa jednostki miary wykorzystana", u"Już jest w bazie jednostka miary o tej nazwie"},
    {2839, u"Brak nazwy kontrahenta", u"Nie można zapisać kontrahenta z pustą nazwą"},
    {2840, u"Brak nazwy towaru / usługi", u"Nie można zapisać towaru ani usługi z pustą nazwą"},
    {2841, u"Brak autora dokumentu"},
    {2842, u"Brak magazynu dla dokumentu"},
    {2843, u"Nieznany sterownik urządzenia"},
    {2845, u"Nie wybrano magazynu"},
    {2846, u"Brak urządzeń na tym stanowisku"},
    {2847, u"Drukarka fiskalna zajęta"},
    {2848, u"Brak definicji sterownika"},
    {2849, u"Paragon nie jest otwarty"},
    {2851, u"Brak inwentaryzatora"},
    {2852, u"Inwentaryzator nie obsługuje eksportu"},
    {2855, u"Nie wybrano formatu EDI"},
    {2856, u"Brak obsługi EDI"},
    {2857, u"Kod towaru centralnego CKU nie jest unikalny", {}, Forma::Szczegol},
    {2858, u"Nie wpisano ceny ewidencyjnej"},
    {2859, u"Nie wpisano marży"},
    {2860, u"Numer sklepu nie jest unikalny"},
    {2861, u"Brak obsługi importu paragonów"},
    {2862, u"To nie jest centrala sieci"},
    {2863, u"To nie jest sklep w sieci"},
    {2864, u"Blokada zmian towaru",
     u"Towar ma założoną centralną blokadę zmian, uniemożliwiającą wykonanie wybranej operacji"},
    {2865, u"Brak towaru w magazynie"},
    {2866, u"Przedostek kodu ważonego nie jest unikalny",
     u"Któryś z innych formatów w konfiguracji już ma ten przedrostek.\r\nId formatu = ",
     Forma::ZeSzczegolem},
    {2867, u"Niezerowy stan lub blokada",
     u"Towar ma niezerowy stan lub blokadę w którymś z magazynów. Nie można usunąć."},
    {2868, u"Towar centralny", u"Nie można usunąć towaru centralnego."},
    {2869, u"Blokada dostawców towaru",
     u"Towar ma założoną centralną blokadę dostawców, uniemożliwiającą wykonanie wybranej operacji"},
    {2871, u"Powtórzona wartość parametru"},
    {2872, u"Powtórzony opis wartości"},
    {2873, u"Nie podano nazwy dla parametru"},
    {2874, u"Nazwa parametru nie jest unikalna"},
    {2875, u"Nie wprowadzono ani jednej wartości"},
    {2876, u"Parametr przypisany do kategorii"},
    {2877, u"Nie podano nazwy dla kategorii"},
    {2878, u"Nazwa kategorii nie jest unikalna"},
    {2879, u"Towary przypisane do kategorii"},
    {2880, u"Nie podano nazwy dla grupy towarowej"},
    {2881, u"Nazwa grupy towarowej nie jest unikalna"},
    {2882, u"Były już importy z tego sklepu"},
    {2883, u"Wzorzec dokumentu bez pozycji"},
    {2884, u"Pozycja bez ilości towaru we wzorcu dokumentu"},
    {2885, u"Towar już jest w liniach wzorca"},
    {2886, u"Nie podano nazwy dla wzorca dokumentu"},
    {2887, u"Nazwa wzorca dokumentu nie jest unikalna"},
    {2888, u"Zły format karty stałego klienta"},
    {2889, u"Błąd sumy kontrolnej kodu karty"},
    {2890, u"Nieprawidłowy numer sieci sklepów"},
    {2891, u"Blokada karty stałego klienta"},
    {2892, u"Upłynął termin ważności karty"},
    {2893, u"Błąd wklejania danych ze schowka"},
    {2894, u"Kod główny jest niepoprawny",
     u"Główny kod nie jest zgodny z obsługiwanymi przez program formatami kodów kreskowych:\r\n",
     Forma::ZeSzczegolem},
    {2895, u"Kod dodatkowy jest niepoprawny",
     u"Jeden z kodów dodatkowych nie jest zgodny z obsługiwanymi przez program formatami kodów "
     u"kreskowych:\r\n",
     Forma::ZeSzczegolem},
    {2896, u"Automatycznie dodawany kod dodatkowy jest niepoprawny", {}, Forma::Zlozony},
    {2897, u"Automatycznie dodawany kod dodatkowy jest już używany przez inny towar",
     u"Program próbował dla towaru ważonego dodać kod dodatkowy.\r\n", Forma::ZeSzczegolem},
    {2898, u"Nie znaleziono stałego klienta"},
    {2899, u"Urządzenie przypisane do innego stanowiska"},
    {2900, u"Nie zdefiniowano sklepów"},
    {2901, u"Źle wypełnione parametry identyfikacji paragonu"},
    {2902, u"Limit zakupów wyczerpany"},
    {2903, u"Bieżąca data poza skonfigurowanymi periodami"},
    {2904, u"Niewłaściwa karta klienta"},
    {2905, u"Za mało punktów na karcie"},
    {2906, u"Błąd odjęcia z karty punktów\r\nNie wiadomo, czy punkty zostały odjęte !"},
    {2907, u"Brak potwierdzenia kartą pracownika"},
    {2908, u"Karta przed terminem ważności"},
    {2909, u"Zablokowana sprzedaż na ten typ karty klienta"},
    {2910, u"Nieobsługiwana opcja sterownika"},
    {2911, u"Niewłaściwy sposób sortowania dla typu dokumentu"},
    {2912, u"Taka pozycja już jest w harmonogramie"},
};

constexpr PozycjaKatalogu kBledyOkien[] = {
    {3001, u"Nie można otworzyć edytora dokumentu"},
    {3002, u"Nie można otworzyć edytora pozycji dokumentu"},
    {3003, u"Niewłaściwy typ dokumentu"},
    {3004, u"Uszkodzony nagłówek pliku"},
    {3005, u"To nie jest eksport z bazy danych programu Veltrana 7"},
    {3006, u"Nieobsługiwana metoda kodowania"},
    {3007, u"To nie jest robocza kopia dokumentu Veltrana 7"},
    {3008, u"Niedokończony plik dokumentu"},
    {3009, u"Nieobsługiwana wersja pliku"},
    {3011, u"Uszkodzone bloki danych w pliku"},
    {3012, u"Brak danych nagłówkowych dokumentu"},
    {3401, u"Nie znaleziono towaru z tym kodem", {}, Forma::Szczegol},
    {3402, u"Towar z tym kodem został usunięty",
     u"Wprowadzony kod kreskowy jest przypisany do towaru, który został usunięty z listy towarów.\r\nAby móc "
     u"wprowadzać ten towar do dokumentu należy go przywrócić na listę aktywnych towarów"},
    {3801, u"Za dużo otwartych okien"},
    {3802, u"Nie wprowadzono pozycji dokumentu"},
    {3803, u"Nie podano magazynu dla dokumentu"},
    {3804, u"Nie podano kontrahenta"},
    {3805, u"Nie nadano numeru dokumentu"},
    {3806, u"Najpierw wybierz kontrahenta"},
    {3807, u"Nie można teraz zmienić kontrahenta"},
    {3808, u"Nie podano jednego z magazynów dla dokumentu MM"},
    {3809, u"Nie podano kasy"},
    {3810, u"Brak towaru w magazynie"},
    {3811, u"Wybrano niewłaściwy dokument"},
    {3812, u"Wybrano niewłaściwy dokument"},
    {3813, u"Sprzedaż opakowania w pierwszej linii zabroniona"},
    {3814, u"Nie wpisano kwoty"},
    {3815, u"Remanent nie został podsumowany"},
    {3816, u"Najpierw zamknij wszystkie dokumenty"},
    {3817, u"Inicjacja ze zbyt wczesną datą"},
    {3818, u"Zerowe lub ujemne pozycje na fakturze"},
    {3820, u"Nie otwarto zmiany kasjera"},
    {3821, u"Zmiana kasjera jest otwarta"},
    {3822, u"Otwarte nowe dokumenty"},
    {3823, u"Brak pozycji dla faktury"},
    {3824, u"Zarówno ilość jak i wartość muszą mieć ten sam znak"},
    {3825, u"Nie ma tyle gotówki do wypłacenia"},
    {3826, u"Nie można sprzedać z zerową ceną"},
    {3827, u"W pozycji nie wpisano ilości towaru"},
    {3829, u"Nie można sprzedać z zerową ceną"},
    {3830, u"Towar nie może być kupowany u tego dostawcy"},
    {3831, u"Towar nie może mieć zmienionej ceny sprzedaży"},
    {3832, u"Nie było korekty"},
    {3833, u"Przekroczony termin płatności faktur"},
    {3834, u"Przekroczony limit kredytów kupieckich"},
    {3835, u"Przekroczony termin płatności faktur"},
    {3836, u"Przekroczony limit kredytów kupieckich"},
    {3837, u"Przekroczony limit kredytów kupieckich"},
    {3838, u"Nie było sprzedaży"},
    {3839, u"Wzorzec bez pozycji"},
    {3840, u"Nie można zwracać opakowań"},
    {3841, u"To nie jest opakowanie zwrotne"},
    {3842, u"Brak dokumentów magazynowych"},
    {3843, u"Zbyt wysoka cena zakupu towaru"},
    {3844, u"Brak magazynów w konfiguracji"},
    {3845, u"Niewłaściwy typ dokumentu lub dokument usunięty"},
    {3846, u"Dokument jest już otwarty"},
    {3848, u"Brak pozycji dla dokumentu zwrotu"},
    {3850, u"Towar w nieprzydzielonym asortymencie"},
    {3851, u"Niedozwolony dokument magazynowy dla faktury VAT RR"},
    {3852, u"Niedozwolone pozycje dokumentu magazynowego dla faktury VAT RR"},
    {3853, u"Brak lub zerowa cena zakupu"},
    {3854, u"Brak lub zerowa cena sprzedaży"},
    {3855, u"Nie zdefiniowano sklepów"},
    {3856, u"Nie wprowadzono kodu karty"},
    {3857, u"Przekroczony limit sprzedaży"},
    {3858, u"Sprzedaż za punkty bez karty"},
    {3859, u"Sprzedaż za punkty powyżej stanu karty"},
    {3860, u"Ujemna kwota na dokumencie"},
    {3861, u"Niewłaściwy rodzaj płatności"},
    {3862, u"Kwota na dokumencie poniżej sumy rozliczeń"},
    {3863, u"Nieprawidłowa kwota rozliczenia dla jednego z dokumentów"},
    {3864, u"Brak stawki VAT na drukarce fiskalnej"},
};

constexpr Zakres kZakresyDanych[] = {
    {0, u"Wystąpił błąd", KlasaBledu::Blad},
    {2300, u"Bład sterownika", KlasaBledu::Ostrzezenie},
    {2351, u"Informacja sterownika", KlasaBledu::Informacja},
    {2400, u"Błąd wprowadzania danych", KlasaBledu::Ostrzezenie},
    {2800, u"Operacja nie może zostać wykonana", KlasaBledu::Ostrzezenie},
};

constexpr Zakres kZakresyOkien[] = {
    {0, u"Wystąpił błąd", KlasaBledu::Blad},
    {3400, u"Błąd wprowadzania danych", KlasaBledu::Ostrzezenie},
    {3800, u"Operacja nie może zostać wykonana", KlasaBledu::Ostrzezenie},
};

QString OpisSumyKontrolnej(const QString& kod) {
  QString opis = QStringLiteral("Wprowadzony kod EAN ");
  if (kod.size() == 8 || kod.size() == 13)
    opis += QStringLiteral("%1: %2 ").arg(QString::number(kod.size()), kod);
  return opis + QStringLiteral("ma źle wyliczoną sumę kontrolną");
}

QString OpisKoduAutomatycznego(const QString& kod) {
  return QStringLiteral("Program próbował dla towaru ważonego dodać kod dodatkowy: ") + kod +
         QStringLiteral(
             "\r\nTaki kod nie jest zgodny z obsługiwanymi przez program formatami kodów kreskowych.");
}

QString OpisZlozony(int kodBledu, const QString& szczegol) {
  switch (kodBledu) {
    case 2826:
      return OpisSumyKontrolnej(szczegol);
    case 2896:
      return OpisKoduAutomatycznego(szczegol);
    default:
      return {};
  }
}

QString Opis(const PozycjaKatalogu& pozycja, const QString& szczegol) {
  QString staly = QStringView(pozycja.opis).toString();
  switch (pozycja.forma) {
    case Forma::Staly:
      return staly;
    case Forma::ZeSzczegolem:
      return staly + szczegol;
    case Forma::Szczegol:
      return szczegol;
    case Forma::Zlozony:
      return OpisZlozony(pozycja.kod, szczegol);
  }
  return {};
}

std::span<const PozycjaKatalogu> Pozycje(Katalog katalog) {
  if (katalog == Katalog::Dane) return kBledyDanych;
  return kBledyOkien;
}

std::span<const Zakres> Zakresy(Katalog katalog) {
  if (katalog == Katalog::Dane) return kZakresyDanych;
  return kZakresyOkien;
}

}  // namespace

Teksty Szukaj(Katalog katalog, int kod, const QString& szczegol) {
  const auto pozycje = Pozycje(katalog);
  const auto pozycja = std::lower_bound(pozycje.begin(), pozycje.end(), kod,
                                        [](const PozycjaKatalogu& p, int k) { return p.kod < k; });
  if (pozycja == pozycje.end() || pozycja->kod != kod) return {};
  return {QStringView(pozycja->tytul).toString(), Opis(*pozycja, szczegol)};
}

const Zakres& SzukajZakresu(Katalog katalog, int kod) {
  const auto zakresy = Zakresy(katalog);
  const auto nastepny = std::upper_bound(zakresy.begin(), zakresy.end(), kod,
                                         [](int k, const Zakres& zakres) { return k < zakres.odKodu; });
  return nastepny == zakresy.begin() ? zakresy.front() : *std::prev(nastepny);
}

}  // namespace katalog_bledow
