#include <stdexcept>
#include <thread>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "model/kontekst.h"
#include "platform/wyjatek.h"
#include "run/operator.h"
#include "shell/przebieg/wykonanie_przebiegu.h"
#include "tests/okno/osoba_przy_oknie.h"
#include "tests/okno/rozmowa_testowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Otoczenie = ZadaniePrzebiegu::Otoczenie;

QPushButton& Przycisk(QDialog& okno) {
  return *okno.findChild<QPushButton*>("button");
}

int CzekajIZamknij(QDialog& okno, std::vector<Krok> kroki = {}) {
  QPushButton& przycisk = Przycisk(okno);
  okno.findChild<QTimer*>("timer")->setInterval(1);
  kroki.push_back({[&] { return przycisk.text() == u"Zamknij"; },
                   [&] {
                     EXPECT_TRUE(przycisk.isEnabled() && przycisk.isDefault());
                     przycisk.click();
                   }});
  return Przejdz(okno, kroki);
}

class OknoPostepu : public testing::Test {
 protected:
  RozmowaTestowa rozmowa;

  WynikPrzebiegu Przebiegnij(const std::function<WynikPrzebiegu(const Otoczenie&)>& wykonaj) {
    return WykonajZOknemPostepu(nullptr, rozmowa, {QStringLiteral("Postęp eksportu towarów"), wykonaj});
  }
  // A run that does something and ends well.
  WynikPrzebiegu Przeprowadz(const std::function<void(const Otoczenie&)>& praca) {
    return Przebiegnij([&](const Otoczenie& o) {
      praca(o);
      WynikPrzebiegu wynik;
      wynik.koniec = o.stop ? KoniecPrzebiegu::Przerwano : KoniecPrzebiegu::Zakonczono;
      return wynik;
    });
  }
};

TEST_F(OknoPostepu, PrzebiegZatrzymanyNieDajeZamknacOknaDoKonca) {
  std::atomic<bool> moznaKonczyc = false;
  rozmowa.dialogi.push_back([&](QDialog& okno) {
    QPushButton& przycisk = Przycisk(okno);
    EXPECT_EQ(okno.windowTitle(), "Postęp eksportu towarów");
    const auto probuj = [&](const QString& tekst) {
      EXPECT_EQ(przycisk.text(), tekst);
      okno.close();
      QKeyEvent esc(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
      QCoreApplication::sendEvent(&okno, &esc);
      QApplication::closeAllWindows();
      EXPECT_TRUE(okno.isVisible());
      przycisk.click();
      EXPECT_EQ(przycisk.text(), "Czekaj");
      EXPECT_FALSE(przycisk.isEnabled());
    };
    CzekajIZamknij(okno, {{[&] { return okno.isVisible(); }, [&] { probuj("Przerwij"); }},
                          {[] { return true; },
                           [&] {
                             probuj("Czekaj");
                             moznaKonczyc = true;
                           }}});
    EXPECT_FALSE(okno.findChild<QTimer*>("timer")->isActive());
    return 0;
  });
  const WynikPrzebiegu wynik = Przeprowadz([&](const Otoczenie& o) {
    while (!o.stop || !moznaKonczyc) std::this_thread::yield();
  });
  EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Przerwano);
}

class BladTestu final : public EMException {
 public:
  BladTestu() { UstawTeksty(QStringLiteral("Tytuł"), QStringLiteral("opis")); }
  QString Naglowek() const override { return QStringLiteral("Błąd bazy"); }
};

TEST_F(OknoPostepu, WyjatekJestPokazanyRazIKonczyPrzebiegBledem) {
  const struct {
    void (*rzuc)(const Otoczenie&);
    QString naglowek, tekst;
  } przypadki[] = {
      {[](const Otoczenie&) { throw BladTestu(); }, "Błąd bazy", "Tytuł\nopis"},
      {[](const Otoczenie&) { throw std::runtime_error("brak pliku"); }, "Wystąpił błąd", "brak pliku"},
      {[](const Otoczenie&) { throw 5; }, "Wystąpił błąd", "Nieznany błąd"},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(p.tekst.toStdString());
    rozmowa.pytania.clear();
    rozmowa.dialogi.push_back([](QDialog& okno) { return CzekajIZamknij(okno); });
    const WynikPrzebiegu wynik = Przeprowadz([&](const Otoczenie& o) {
      o.postep.Faza("łączenie z bazą VLT Win", 0);
      p.rzuc(o);
    });
    EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Blad);
    ASSERT_EQ(rozmowa.pytania.size(), 1U);
    EXPECT_EQ(rozmowa.pytania[0].komunikat.naglowek, p.naglowek);
    EXPECT_EQ(rozmowa.pytania[0].komunikat.tekst, p.tekst);
    EXPECT_EQ(rozmowa.pytania[0].ikona, QMessageBox::Critical);
  }
}

TEST_F(OknoPostepu, PytaniaIKomunikatyPrzebieguZadajeWatekGlowny) {
  rozmowa.odpowiedzi = {QMessageBox::Abort, QMessageBox::Retry, QMessageBox::Ignore, QMessageBox::Yes,
                        QMessageBox::No};
  rozmowa.teksty = {"Mleko", std::nullopt};
  rozmowa.dialogi.push_back([](QDialog& okno) { return CzekajIZamknij(okno); });
  Przeprowadz([&](const Otoczenie& o) {
    for (const auto odpowiedz :
         {OdpowiedzLiczbaPol::Przerwij, OdpowiedzLiczbaPol::Pomin, OdpowiedzLiczbaPol::Ignoruj})
      EXPECT_EQ(o.oper.LiczbaPol({"Uwaga", "Liczba pól"}), odpowiedz);
    EXPECT_TRUE(o.oper.CzyTak({"Uwaga", "Nie poprawiasz?"}, true));
    EXPECT_FALSE(o.oper.CzyTak({"Uwaga", "Czy wyręczyć Cię"}, false));
    EXPECT_EQ(o.oper.PodajTekst({"Uwaga", "Nazwa"}), "Mleko");
    EXPECT_EQ(o.oper.PodajTekst({"Uwaga", "Nazwa"}), std::nullopt);
    o.postep.Pokaz("Koniec", "Aktualizację zakończono");
    for (const char* tytul : {"UWAGA", "Błąd", "BŁĄD", "Wystąpił błąd"}) o.postep.Pokaz(tytul, "Plik");
  });
  const auto& pytania = rozmowa.pytania;
  ASSERT_EQ(pytania.size(), 10U);
  EXPECT_EQ(pytania[0].przyciski, QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore);
  for (const int pytanie : {3, 4}) EXPECT_EQ(pytania[static_cast<size_t>(pytanie)].domyslny, QMessageBox::No);
  EXPECT_EQ(pytania[5].ikona, QMessageBox::Information);
  EXPECT_EQ(pytania[6].ikona, QMessageBox::Warning);
  for (std::size_t i = 7; i < 10; ++i) EXPECT_EQ(pytania[i].ikona, QMessageBox::Critical);
}

// Takes a quarter of a second for each box.
struct Zamyslony final : Rozmowa {
  QString zakonczenie;

  int Pokaz(QDialog& okno) override {
    if (qobject_cast<QMessageBox*>(&okno)) {
      std::this_thread::sleep_for(std::chrono::milliseconds(250));
      return QMessageBox::Ok;
    }
    return CzekajIZamknij(okno,
                          {{[&] { return okno.findChild<QPushButton*>("button")->text() == u"Zamknij"; },
                            [&] { zakonczenie = okno.findChild<QLabel*>("tempo")->text(); }}});
  }
};

TEST_F(OknoPostepu, CzasPrzebieguNieLiczyCzekaniaNaOsobe) {
  Zamyslony osoba;
  WykonajZOknemPostepu(nullptr, osoba, {{}, [](const Otoczenie& o) {
                                          o.postep.Pokaz("Koniec", "Aktualizację zakończono");
                                          o.oper.CzyTak({"Uwaga", "Nie poprawiasz?"}, true);
                                          WynikPrzebiegu wynik;
                                          wynik.koniec = KoniecPrzebiegu::Zakonczono;
                                          wynik.sekund = 60;
                                          return wynik;
                                        }});
  const QStringList slowa = osoba.zakonczenie.split(u' ');
  ASSERT_EQ(slowa.size(), 4) << osoba.zakonczenie.toStdString();
  const double sekund = QString(slowa[2]).replace(u',', u'.').toDouble();
  EXPECT_TRUE(sekund > 50 && sekund <= 59.5) << sekund;
}

TEST_F(OknoPostepu, OknoZamknieteOdGoryKonczyPrzebieg) {
  rozmowa.dialogi.push_back([](QDialog&) { return 0; });
  int pokazanych = 0;
  const WynikPrzebiegu wynik = Przeprowadz([&](const Otoczenie& o) {
    while (!o.stop) o.postep.Faza("linia", 0);
    o.postep.Pokaz("Koniec", "Aktualizację zakończono");
    pokazanych = static_cast<int>(rozmowa.pytania.size());
  });
  EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Przerwano);
  EXPECT_EQ(pokazanych, 1);
}

TEST_F(OknoPostepu, PrzebiegZaPrzebiegiem) {
  for (int i = 0; i < 10; ++i) {
    rozmowa.dialogi.push_back([](QDialog& okno) { return CzekajIZamknij(okno); });
    const WynikPrzebiegu wynik = Przeprowadz([](const Otoczenie& o) {
      o.postep.Faza("Numer aktualnego rekordu ", 100);
      for (int n = 1; n <= 100; ++n) o.postep.DopiszLiczbe(n);
      o.postep.Gotowe();
      o.postep.Koniec();
    });
    EXPECT_EQ(wynik.koniec, KoniecPrzebiegu::Zakonczono);
  }
}

TEST_F(OknoPostepu, UwagiMajaWlasnaListe) {
  const std::vector<Uwaga> uwagi{{RodzajUwagi::WiecejPol, u"Dalszy tekst"_s, 12, {1, 3}},
                                 {RodzajUwagi::StronaKodowa, u"Inna strona"_s, 0, {}}};
  for (const bool sa : {true, false}) {
    QStringList komorki;
    rozmowa.dialogi.push_back([&](QDialog& okno) {
      auto& przycisk = *okno.findChild<QPushButton*>("uwagi");
      return CzekajIZamknij(okno, {{[&] { return Przycisk(okno).text() == u"Zamknij"; },
                                    [&] {
                                      EXPECT_EQ(przycisk.isVisible(), sa);
                                      if (sa) przycisk.click();
                                    }}});
    });
    if (sa)
      rozmowa.dialogi.push_back([&](QDialog& lista) {
        const auto& tabela = *lista.findChild<QTableWidget*>("tabela");
        for (int i = 0; i < tabela.rowCount() * 3; ++i) komorki << tabela.item(i / 3, i % 3)->text();
        return 0;
      });
    Przebiegnij([&](const Otoczenie&) {
      WynikPrzebiegu wynik;
      wynik.koniec = KoniecPrzebiegu::Zakonczono;
      if (sa) wynik.uwagi = uwagi;
      return wynik;
    });
    EXPECT_EQ(komorki,
              sa ? QStringList({"Dalszy tekst", "12", u"1, 3, …"_s, "Inna strona", "", ""}) : QStringList());
  }
}

TEST_F(OknoPostepu, KoniecMowiJakBylIPominieteSaDostepneGdySa) {
  const QTemporaryDir folder;
  QFile pominiete(folder.filePath("POMINIETE.TXT"));
  ASSERT_TRUE(pominiete.open(QIODevice::WriteOnly));
  pominiete.write("123 | Mleko | Brak kodu\r\n");
  pominiete.close();
  const struct {
    QString plik;
    KoniecPrzebiegu koniec;
    int list;
    QString zakonczenie;
  } przypadki[] = {
      {"", KoniecPrzebiegu::Odmowa, 0, "Nie rozpoczęto"},
      {folder.filePath("brak"), KoniecPrzebiegu::Przerwano, 0, "Przerwano po 1,5 s"},
      {pominiete.fileName(), KoniecPrzebiegu::Blad, 1, "Zakończono z powodu błędu po 1,5 s"},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(p.zakonczenie.toStdString());
    int list = 0;
    rozmowa.dialogi.push_back([&](QDialog& okno) {
      const auto przyciskListy = okno.findChild<QPushButton*>("pominiete");
      return CzekajIZamknij(okno, {{[&] { return Przycisk(okno).text() == u"Zamknij"; },
                                    [&] {
                                      EXPECT_EQ(okno.findChild<QLabel*>("tempo")->text(), p.zakonczenie);
                                      if (przyciskListy->isVisible()) przyciskListy->click();
                                    }}});
    });
    rozmowa.dialogi.push_back([&](QDialog&) { return ++list; });
    Przebiegnij([&](const Otoczenie&) {
      WynikPrzebiegu wynik;
      wynik.koniec = p.koniec;
      wynik.plikPominietych = p.plik;
      wynik.sekund = 1.5;
      return wynik;
    });
    EXPECT_EQ(list, p.list);
    rozmowa.dialogi.clear();
  }
}

}  // namespace
