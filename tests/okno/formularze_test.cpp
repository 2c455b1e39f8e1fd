#include "shell/formularze/formularze.h"

#include <thread>

#include <QCheckBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

#include "database/schemat.h"
#include "model/bledy.h"
#include "model/kontekst.h"
#include "model/kontrahent.h"
#include "model/parametry_systemu.h"
#include "model/slowniki.h"
#include "model/towar.h"
#include "robotnik/przekazanie.h"
#include "shell/formularze/formularz_kontrahenta.h"
#include "shell/formularze/formularz_towaru.h"
#include "tests/okno/osoba_przy_formularzu.h"
#include "tests/okno/rozmowa_testowa.h"
#include "tests/wspolne/baza_testowa.h"

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;

namespace {

struct PustaBaza : BazaTestowa {
  PustaBaza() { UtworzBaze(baza, {}); }
};

class Formularze : public testing::Test {
 protected:
  Formularze() {
    for (const char* sql :
         {"insert into Asort (Nazwa) values ('Napoje'), ('Soki')",
          "insert into JM (Nazwa) values ('kg'), ('szt.')", "insert into Magazyn (Nazwa) values ('Główny')",
          "insert into Towar (Nazwa, Skrot, Kod, TypTowaru, Aktywny) values ('Skrzynka', "
          "'Skrz', '99', 1, 1)",
          "insert into Kategoria (Nazwa) values ('Sery'), ('Wina')",
          "insert into Parametr (Nazwa, Typ, Do) values ('Kolor', 0, 0), ('Moc', 1, 20)",
          "insert into ParWartosc values (1, 0, 'biały'), (1, 1, 'czerwony')",
          "insert into KatParam values (1, 2, 0), (2, 1, 0), (2, 2, 1)",
          "insert into Kontrahent (Nazwa, NIP) values ('Winnica', '521-001-00-45'), ('Hurt', '77-22'), "
          "('Bez numeru', 'brak')",
          "insert into TowDostawca values (1, 3, 0), (1, 1, 1)",
          "update Istw set StanMag = 2.5, BlokadaMag = 1"})
      b.baza.ExecSQL(sql);
    towar.Nowy();
    for (const auto& [kolumna, wartosc] : {std::pair(KolumnaTowaru::AsId, 1), {KolumnaTowaru::JMId, 1}})
      towar.Query.Field(kolumna).SetInteger(wartosc);
    kontrahent.Nowy();
    kontrahent.UstawSklep(true);
  }

  // What the person does in the form of a record; whether it was accepted.
  bool Edytuj(TDmVLTElement& rekord, const std::function<int(QDialog&)>& osoba) {
    rozmowa.dialogi.push_back(osoba);
    return UtworzFormularz(nullptr, rozmowa, rekord)->PokazModalnie();
  }

  PustaBaza b;
  ParametrySystemu parametry;
  KontekstSesji sesja{b.baza, parametry};
  OtoczenieZParametrow otoczenie{sesja};
  TDmVLTTowar towar{sesja, otoczenie.Widok()};
  TDmVLTKontrahent kontrahent{sesja};
  RozmowaTestowa rozmowa;
};

// Something that differs from what an empty record shows, and is good for a save.
QString Przykladowy(const OpisPolaFormularza& pole) {
  switch (pole.rodzaj) {
    case RodzajPola::Procent:
      return QString::number(pole.kolumna + 13);  // 29 in the first: 0.29 * 100 is not 29
    case RodzajPola::Kwota:
    case RodzajPola::Cena:
      return Liczba(QString::number(pole.kolumna) + u".29"_s);
    case RodzajPola::Data:
      return u"31.12.2030"_s;
    case RodzajPola::Kontrahent:
      return u"521-001-00-45"_s;
    default:
      return QString::number(1000 + pole.kolumna);
  }
}

// The text of a control, of whatever kind.
QString Widac(QWidget& kontrolka) {
  if (auto* const lista = qobject_cast<QComboBox*>(&kontrolka)) return lista->currentText();
  if (auto* const znacznik = qobject_cast<QCheckBox*>(&kontrolka))
    return znacznik->isChecked() ? u"tak"_s : u"nie"_s;
  return static_cast<QLineEdit&>(kontrolka).text();
}

void Zmien(QWidget& kontrolka, const OpisPolaFormularza& pole) {
  if (auto* const lista = qobject_cast<QComboBox*>(&kontrolka))
    lista->setCurrentIndex(lista->currentIndex() == lista->count() - 1 ? 0 : lista->count() - 1);
  else if (auto* const znacznik = qobject_cast<QCheckBox*>(&kontrolka))
    znacznik->toggle();
  else
    static_cast<QLineEdit&>(kontrolka).setText(Przykladowy(pole));
}

QWidget& KontrolkaPola(QDialog& okno, const TDmVLTElement& rekord, std::size_t kolumna) {
  return Znajdz(okno, QLatin1String(rekord.Query.Field(kolumna).FieldName()));
}

void Wyslij(QWidget& kontrolka, QEvent&& zdarzenie) {
  QCoreApplication::sendEvent(&kontrolka, &zdarzenie);
}

class TabelaPol : public Formularze {
 protected:
  // Every field is changed, accepted, saved, read again by another record and shown as it was typed.
  void PrzejdzTabele(TDmVLTElement& rekord, TDmVLTElement& zBazy, const OpisFormularza& opis) {
    QStringList wpisane;
    QStringList pokazane;
    ASSERT_TRUE(Edytuj(rekord, [&](QDialog& okno) {
      for (const OpisPolaFormularza& pole : opis.pola) {
        QWidget& kontrolka = KontrolkaPola(okno, rekord, pole.kolumna);
        const QString bylo = Widac(kontrolka);
        Zmien(kontrolka, pole);
        EXPECT_NE(Widac(kontrolka), bylo) << kontrolka.objectName().toStdString();
        EXPECT_FALSE(kontrolka.accessibleName().isEmpty());
        wpisane << Widac(kontrolka);
      }
      return Kliknij(okno, u"Zapisz"_s);
    }));
    zBazy.Wczytaj(rekord.Zapisz());
    EXPECT_FALSE(Edytuj(zBazy, [&](QDialog& okno) {
      for (const OpisPolaFormularza& pole : opis.pola)
        pokazane << Widac(KontrolkaPola(okno, zBazy, pole.kolumna));
      return Kliknij(okno, u"Rezygnuj"_s);
    }));
    EXPECT_EQ(pokazane, wpisane);
    // What was shown and not changed is not written, however it was rounded.
    EXPECT_TRUE(Edytuj(zBazy, [](QDialog& okno) { return Kliknij(okno, u"Zapisz"_s); }));
    EXPECT_FALSE(zBazy.CzyZmieniony());
  }
};

TEST_F(TabelaPol, KazdePoleTowaruPiszeSwojaKolumneIWraca) {
  TDmVLTTowar zBazy(sesja, otoczenie.Widok());
  PrzejdzTabele(towar, zBazy, TFmVLTFormularzTowaru::Opis());
  EXPECT_DOUBLE_EQ(zBazy.Marza(), 0.29);
  EXPECT_EQ(zBazy.Stawka(), -1);
}

TEST_F(TabelaPol, KazdePoleKontrahentaPiszeSwojaKolumneIWraca) {
  TDmVLTKontrahent zBazy(sesja);
  PrzejdzTabele(kontrahent, zBazy, TFmVLTFormularzKontrahenta::Opis());
  EXPECT_EQ(zBazy.TermWaznKarty(), QDate(2030, 12, 31));
}

TEST_F(TabelaPol, KazdaOdmowaStoiPrzySwoimPoluNaWidocznejStronie) {
  const auto przejdz = [&](TDmVLTElement& rekord, const OpisFormularza& opis) {
    for (const PoleBledu& p : opis.bledy) {
      rekord.Query.Field(p.kolumna).SetString(QString::number(p.kod));
      const EVLTWDError blad(p.kod, nullptr, u"[szczegół]"_s);
      rozmowa.dialogi.push_back([&](QDialog& okno) {
        QWidget& kontrolka = KontrolkaPola(okno, rekord, p.kolumna);
        EXPECT_EQ(kontrolka.accessibleDescription(), blad.Tresc());
        EXPECT_EQ(okno.focusWidget(), &kontrolka);
        EXPECT_TRUE(kontrolka.isVisibleTo(&okno));
        return Kliknij(okno, u"Rezygnuj"_s);
      });
      EXPECT_EQ(PoprawWFormularzu(nullptr, rozmowa, rekord, {u"Odmowa"_s, blad}), Poprawka::Zrezygnowano);
      rekord.Query.ZatwierdzZmiany();
    }
  };
  przejdz(towar, TFmVLTFormularzTowaru::Opis());
  przejdz(kontrahent, TFmVLTFormularzKontrahenta::Opis());
  towar.Kody().Dodaj({0, u"777"_s, u"d"_s});
  for (const int kod : {2820, 2826, 2827, 2828, 2830, 2895}) {
    const EVLTWDError blad(kod, nullptr, u"777"_s);
    rozmowa.dialogi.push_back([&](QDialog& okno) {
      EXPECT_EQ(BladPrzy(okno, u"tabelaKodow"_s), blad.Tresc()) << kod;
      return Kliknij(okno, u"Rezygnuj"_s);
    });
    PoprawWFormularzu(nullptr, rozmowa, towar, {u"Odmowa"_s, blad});
  }
}

TEST_F(Formularze, ZmianySaPorzucaneDopieroPoPytaniu) {
  const auto porzuc = [this](TDmVLTElement& rekord, const std::function<void(QDialog&)>& zmien) {
    rozmowa.pytania.clear();
    rozmowa.odpowiedzi = {QMessageBox::No, QMessageBox::Yes};
    EXPECT_FALSE(Edytuj(rekord, [&](QDialog& okno) {
      okno.show();
      zmien(okno);
      okno.close();
      EXPECT_TRUE(okno.isVisible());
      return Kliknij(okno, u"Rezygnuj"_s);
    }));
    ASSERT_EQ(rozmowa.pytania.size(), 2U);
    EXPECT_EQ(rozmowa.pytania[0].domyslny, QMessageBox::No);
  };
  towar.Kody().Dodaj({0, u"777"_s, u"d"_s});
  const auto otworzKomorke = [](QDialog& okno) -> QLineEdit& {
    okno.show();
    okno.activateWindow();
    QCoreApplication::processEvents();
    okno.findChild<QTabWidget*>()->setCurrentIndex(1);
    auto& kody = Znajdz<QTableWidget>(okno, u"tabelaKodow"_s);
    kody.editItem(kody.item(0, 0));
    return *kody.viewport()->findChild<QLineEdit*>();
  };
  Edytuj(towar, [&](QDialog& okno) {
    otworzKomorke(okno);
    okno.close();  // nothing was typed
    EXPECT_FALSE(okno.isVisible());
    return okno.result();
  });
  porzuc(towar, [&](QDialog& okno) { otworzKomorke(okno).setText(u"778"_s); });
  porzuc(towar, [](QDialog& okno) { Wpisz(okno, u"CenaDet"_s, u"5"_s); });
  porzuc(towar, [](QDialog& okno) { Znajdz<QComboBox>(okno, u"AsId"_s).setCurrentIndex(1); });
  porzuc(kontrahent, [](QDialog& okno) { Znajdz<QGroupBox>(okno, u"gbSklep"_s).setChecked(false); });
  porzuc(kontrahent,
         [](QDialog& okno) { Znajdz<QPlainTextEdit>(okno, u"osoby"_s).appendPlainText("Nowak"); });
  // To look through the pages is no change.
  rozmowa.pytania.clear();
  EXPECT_FALSE(Edytuj(kontrahent, [](QDialog& okno) {
    okno.show();
    for (const int strona : {1, 0}) Znajdz<QTabWidget>(okno, u"zakladki"_s).setCurrentIndex(strona);
    return Kliknij(okno, u"Rezygnuj"_s);
  }));
  EXPECT_TRUE(rozmowa.pytania.empty());
}

TEST_F(Formularze, OdmowaBezPolaStoiNadFormularzemZPrzyczyna) {
  const EVLTWDError blad(2007, std::make_shared<EVLTWDError>(2006));
  rozmowa.dialogi.push_back([&](QDialog& okno) {
    EXPECT_THAT(Znajdz<QLabel>(okno, u"lbOdmowa"_s).text().split(u'\n'),
                testing::IsSupersetOf({u"Nie zapisano"_s, blad.MacMessage(),
                                       u"Przyczyna: "_s + EVLTWDError(2006).MacMessage()}));
    return Kliknij(okno, u"Rezygnuj"_s);
  });
  PoprawWFormularzu(nullptr, rozmowa, towar, {u"Nie zapisano"_s, blad});
}

TEST_F(Formularze, ZlaWartoscJestWskazanaIRekordZostajeNietkniety) {
  constexpr const char* kFormat = "Błąd formatu wprowadzanej wielkości";
  constexpr const char* kZakres = "Wprowadzana wielkość przekracza dopuszczalny zakres";
  const std::string dlugi(1001, 'x');
  struct Zla {
    TDmVLTElement* rekord;
    const char* pole;
    const char* tekst;
    const char* wada;
  };
  for (const Zla& zla :
       {Zla{&towar, "CenaDet", "1,2,3", kFormat}, Zla{&towar, "CenaDet", "1e3", kFormat},
        Zla{&towar, "CenaDet", "99999999999999999", kZakres}, Zla{&towar, "TermWazn", "1.0", kFormat},
        Zla{&towar, "TermWazn", "3000000000", kZakres}, Zla{&towar, "Marza", "x", kFormat},
        Zla{&kontrahent, "NrSklepu", "A", kFormat},
        Zla{&kontrahent, "Ulica", dlugi.c_str(), "Tekst ma 1001 znaków, a mieści się ich 1000"},
        Zla{&kontrahent, "TermWaznKarty", "31.02.2030", "Podaj datę w postaci dd.mm.rrrr"}}) {
    EXPECT_FALSE(Edytuj(*zla.rekord, [&](QDialog& okno) {
      Wpisz(okno, u"Nazwa"_s, u"Inna"_s);
      Wpisz(okno, zla.pole, zla.tekst);
      EXPECT_EQ(Kliknij(okno, u"Zapisz"_s), QDialog::Rejected);
      EXPECT_EQ(BladPrzy(okno, zla.pole), QString(zla.wada)) << zla.tekst;
      EXPECT_EQ(okno.focusWidget()->objectName(), QString(zla.pole));
      return QDialog::Rejected;
    }));
    EXPECT_EQ(zla.rekord->Query.FieldByName("Nazwa").AsString(), QString());
  }
}

TEST_F(Formularze, PoleJestSprawdzanePrzyWyjsciuAPusteLiczbyToZera) {
  towar.UstawCenaDet(3);
  EXPECT_TRUE(Edytuj(towar, [](QDialog& okno) {
    auto& cena = Znajdz<QLineEdit>(okno, u"CenaDet"_s);
    Wyslij(cena, QKeyEvent(QEvent::KeyPress, Qt::Key_X, {}, u"x"_s));
    EXPECT_EQ(BladPrzy(okno, u"CenaDet"_s), QString());
    Wyslij(cena, QFocusEvent(QEvent::FocusOut));
    EXPECT_NE(BladPrzy(okno, u"CenaDet"_s), QString());
    cena.clear();
    return Kliknij(okno, u"Zapisz"_s);
  }));
  EXPECT_EQ(towar.CenaDet(), 0);
}

TEST_F(Formularze, SkrotJestProponowanyZNazwyZFormularza) {
  EXPECT_TRUE(Edytuj(towar, [&](QDialog& okno) {
    auto& nazwa = Znajdz<QLineEdit>(okno, u"Nazwa"_s);
    Wyslij(nazwa, QKeyEvent(QEvent::KeyPress, Qt::Key_S, {}, u"Skrz"_s));
    Wyslij(nazwa, QFocusEvent(QEvent::FocusOut));
    EXPECT_EQ(Znajdz<QLineEdit>(okno, u"Skrot"_s).text(), u"Skrz 1"_s);  // Skrz is taken
    nazwa.setText(u"Woda"_s);
    Kliknij(okno, u"DodajKod"_s);
    auto& kody = Znajdz<QTableWidget>(okno, u"tabelaKodow"_s);
    kody.item(0, 0)->setText(u"777"_s);
    for (const char16_t* przycisk : {u"ZaproponujSkrot", u"ZaproponujSkrotKodu"})
      Kliknij(okno, QString::fromUtf16(przycisk));
    kody.item(0, 2)->setText(u"z"_s);
    EXPECT_EQ(Kliknij(okno, u"Zapisz"_s), QDialog::Rejected);
    EXPECT_NE(BladPrzy(okno, u"tabelaKodow"_s), QString());
    kody.item(0, 2)->setText(u"5"_s);
    EXPECT_TRUE(towar.Skrot().isEmpty() && towar.Kody().Ilosc() == 0);
    return Kliknij(okno, u"Zapisz"_s);
  }));
  EXPECT_EQ(towar.Skrot(), u"Woda"_s);
  EXPECT_EQ(towar.Kody().Wszystkie(), std::vector{(KodDodatkowy{1, u"777"_s, u"Woda 1"_s, 0, 5})});
}

TEST_F(Formularze, ZapisPrzejmujeToCoJestJeszczeWpisywane) {
  EXPECT_TRUE(Edytuj(towar, [](QDialog& okno) {
    okno.show();
    okno.activateWindow();
    QCoreApplication::processEvents();
    auto& nazwa = Znajdz<QLineEdit>(okno, u"Nazwa"_s);
    nazwa.setFocus();
    Wyslij(nazwa, QKeyEvent(QEvent::KeyPress, Qt::Key_S, {}, u"Sok"_s));
    okno.findChild<QTabWidget*>()->setCurrentIndex(1);
    Kliknij(okno, u"DodajKod"_s);
    Znajdz<QTableWidget>(okno, u"tabelaKodow"_s).viewport()->findChild<QLineEdit*>()->setText(u"888"_s);
    return Kliknij(okno, u"Zapisz"_s);
  }));
  EXPECT_EQ(towar.Skrot(), u"Sok"_s);
  ASSERT_EQ(towar.Kody().Ilosc(), 1);
  EXPECT_EQ(towar.Kody()[0].kod, u"888"_s);
}

TEST_F(Formularze, TabIdzieWKolejnosciPolAEnterZapisuje) {
  const auto kolejnosc = [&](TDmVLTElement& rekord) {
    QStringList nazwy;
    Edytuj(rekord, [&](QDialog& okno) {
      okno.show();
      EXPECT_TRUE(Znajdz<QPushButton>(okno, u"Zapisz"_s).isDefault());
      QWidget* const pierwsza = okno.focusWidget();
      QWidget* kontrolka = pierwsza;
      do {
        if ((kontrolka->focusPolicy() & Qt::TabFocus) && !kontrolka->focusProxy() &&
            kontrolka->isVisibleTo(&okno))
          nazwy << kontrolka->objectName();
        kontrolka = kontrolka->nextInFocusChain();
      } while (kontrolka != pierwsza);
      return QDialog::Rejected;
    });
    return nazwy.join(u' ');
  };
  EXPECT_EQ(kolejnosc(towar),
            u"Kod Nazwa Skrot ZaproponujSkrot TypTowaru Stawka AsId JMId CenaEw CenaDet CenaHurt CenaNoc"
            " CenaDod CenaOtwarta Marza HurtRabat NocNarzut Zapisz Rezygnuj qt_tabwidget_tabbar"_s);
  EXPECT_EQ(kolejnosc(kontrahent),
            u"Nazwa NIP Skrot KodKontr NrAnalityki Ulica Kod Miasto Telefon Fax EMail Dostawca Odbiorca"
            " Producent ZakPracChron Aktywny Staly gbSklep NrSklepu NrSeryjny MagId Zapisz Rezygnuj"
            " qt_tabwidget_tabbar"_s);
}

TEST_F(Formularze, ParametryIdaZaKategoria) {
  towar.UstawKatId(2);
  towar.Wartosci().Ustaw(1, 1);
  towar.Wartosci().Ustaw(2, 1e15);
  const auto kategoria = [](QDialog& okno, const QString& nazwa) {
    Znajdz<QComboBox>(okno, u"KatId"_s).setCurrentText(nazwa);
  };
  rozmowa.dialogi.push_back([&](QDialog& okno) {
    EXPECT_EQ(okno.focusWidget()->objectName(), u"Parametr2"_s);
    EXPECT_TRUE(okno.focusWidget()->isVisibleTo(&okno));
    EXPECT_EQ(BladPrzy(okno, u"Parametr2"_s), u"Wprowadzana wielkość przekracza dopuszczalny zakres"_s);
    EXPECT_EQ(Znajdz(okno, u"Parametr2"_s).accessibleName(), u"Moc (od 0 do 20)"_s);
    EXPECT_EQ(Widac(Znajdz(okno, u"Parametr1"_s)), u"czerwony"_s);
    kategoria(okno, u"Sery"_s);
    EXPECT_EQ(okno.findChild<QWidget*>(u"Parametr1"_s), nullptr);
    kategoria(okno, u"(brak)"_s);
    EXPECT_TRUE(Znajdz(okno, u"gbParametry"_s).isHidden());
    kategoria(okno, u"Wina"_s);
    Wpisz(okno, u"Parametr2"_s, u""_s);
    return Kliknij(okno, u"Zapisz"_s);
  });
  PoprawWFormularzu(nullptr, rozmowa, towar, {u"Nie zapisano"_s, EVLTWDError(2006)});
  using Pozycja = WartosciParametrow::Pozycja;
  EXPECT_THAT(towar.Wartosci().Wszystkie(), ElementsAre(Pozycja(1, 1)));
  EXPECT_TRUE(Edytuj(towar, [&](QDialog& okno) {
    EXPECT_EQ(Widac(Znajdz(okno, u"Parametr2"_s)), QString());  // the good has none
    kategoria(okno, u"Sery"_s);
    EXPECT_EQ(Widac(Znajdz(okno, u"Parametr2"_s)), u"0"_s);
    Wpisz(okno, u"Parametr2"_s, u"12,5"_s);
    return Kliknij(okno, u"Zapisz"_s);
  }));
  EXPECT_THAT(towar.Wartosci().Wszystkie(), ElementsAre(Pozycja(2, 12.5)));
}

TEST_F(Formularze, ProducentIDostawcyPoNipieAStanyDoWgladu) {
  using D = DostawcyTowaru::Dostawca;
  towar.Wczytaj(1);
  EXPECT_TRUE(Edytuj(towar, [](QDialog& okno) { return Kliknij(okno, u"Zapisz"_s); }));
  ASSERT_THAT(towar.Dostawcy().Wszyscy(), ElementsAre(D{3, false}, D{1, true})) << "untouched: order and all";
  QStringList zapisy;
  bool awaria = false;
  b.baza.UstawPodsluch([&](std::string_view sql) {
    if (!sql.starts_with("select"))
      zapisy << QString::fromUtf8(sql.data(), static_cast<qsizetype>(sql.size()));
    if (awaria) throw EBladBazy(RodzajBleduBazy::Blokada, u"zajęta"_s, {});
  });
  EXPECT_TRUE(Edytuj(towar, [&](QDialog& okno) {
    auto& dostawcy = Znajdz<QTableWidget>(okno, u"tabelaDostawcow"_s);
    const auto odrzucony = [&](const QString& pole, const QString& powod) {
      EXPECT_EQ(Kliknij(okno, u"Zapisz"_s), QDialog::Rejected);
      EXPECT_TRUE(BladPrzy(okno, pole).startsWith(powod)) << BladPrzy(okno, pole).toStdString();
      EXPECT_EQ(okno.focusWidget()->objectName(), pole);
    };
    dostawcy.setCurrentCell(0, 0);
    Kliknij(okno, u"UsunDostawce"_s);
    EXPECT_EQ(dostawcy.rowCount(), 2) << "the first has no tax number";
    Kliknij(okno, u"DodajDostawce"_s);
    dostawcy.item(2, 0)->setText(u"999"_s);
    odrzucony(u"tabelaDostawcow"_s, u"Wiersz 3: Brak kontrahenta z NIPem 999"_s);
    dostawcy.item(2, 0)->setText(u"PL 7722"_s);
    EXPECT_EQ(dostawcy.item(2, 1)->text(), u"Hurt"_s);
    Wpisz(okno, u"Producent"_s, u"999"_s);
    odrzucony(u"Producent"_s, u"Brak kontrahenta z NIPem 999"_s);
    Wpisz(okno, u"Producent"_s, u"772-2"_s);
    awaria = true;
    odrzucony(u"Producent"_s, u"Baza danych jest zablokowana"_s);
    awaria = false;
    const auto& stany = Znajdz<QTableWidget>(okno, u"tabelaStanow"_s);
    EXPECT_EQ(stany.item(0, 0)->text() + u' ' + stany.item(0, 1)->text() + u' ' + stany.item(0, 2)->text(),
              u"Główny "_s + Liczba(u"2.5"_s) + u" 1"_s);
    return Kliknij(okno, u"Zapisz"_s);
  }));
  EXPECT_EQ(towar.Producent(), 2);
  EXPECT_THAT(towar.Dostawcy().Wszyscy(), ElementsAre(D{1, true}, D{2, true}, D{3, false}));
  EXPECT_TRUE(Edytuj(towar, [](QDialog& okno) {
    Wpisz(okno, u"Producent"_s, u" "_s);
    return Kliknij(okno, u"Zapisz"_s);
  }));
  EXPECT_EQ(towar.Producent(), -1);
  EXPECT_EQ(zapisy, QStringList());
}

TEST_F(Formularze, PustyNumerSklepuIOsobyPoJednejWWierszu) {
  kontrahent.UstawNazwa(u"Sklep"_s);
  kontrahent.UstawNrSklepu(7);
  kontrahent.UstawOsoby(std::vector{u" Nowak"_s});
  const auto dopisz = [](QDialog& okno) {
    Wpisz(okno, u"NrSklepu"_s, u""_s);
    Znajdz<QPlainTextEdit>(okno, u"osoby"_s).appendPlainText(u"  Kowalska \n\nNowak"_s);
    return Kliknij(okno, u"Zapisz"_s);
  };
  EXPECT_TRUE(Edytuj(kontrahent, [](QDialog& okno) { return Kliknij(okno, u"Zapisz"_s); }));
  EXPECT_THAT(kontrahent.Osoby(), ElementsAre(u" Nowak"_s));
  EXPECT_TRUE(Edytuj(kontrahent, dopisz));
  kontrahent.Zapisz();
  EXPECT_EQ(kontrahent.NrSklepu(), 1);  // none was typed: the next free one
  EXPECT_THAT(kontrahent.Osoby(), ElementsAre(u"Nowak"_s, u"Kowalska"_s));
}

TEST_F(Formularze, RobotnikCzekaAzFormularzPokazeWatekGlowny) {
  Przekazanie przekazanie([] {});
  sesja.fabrykaFormularzy = FabrykaFormularzy(nullptr, rozmowa, przekazanie);
  rozmowa.dialogi.push_back([glowny = std::this_thread::get_id()](QDialog& okno) {
    EXPECT_EQ(std::this_thread::get_id(), glowny);
    EXPECT_TRUE(Znajdz(okno, u"PrzerwijImport"_s).isHidden());
    Wpisz(okno, u"Nazwa"_s, u"Sok"_s);
    return Kliknij(okno, u"Zapisz"_s);
  });
  bool przyjety = false;
  bool bezFormularza = true;
  std::thread robotnik([&] {
    przyjety = towar.Edytuj();
    TDmVLTAsortyment asortyment(sesja);
    asortyment.Nowy();
    bezFormularza = asortyment.Edytuj();
    przekazanie.Zamknij();
  });
  przekazanie.ObsluzDoZamkniecia();
  robotnik.join();
  EXPECT_TRUE(przyjety);
  EXPECT_EQ(towar.Nazwa(), u"Sok"_s);
  EXPECT_FALSE(bezFormularza);
}

}  // namespace
