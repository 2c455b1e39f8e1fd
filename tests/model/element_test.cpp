#include "model/element.h"

#include <gtest/gtest.h>

#include "model/bledy.h"
#include "model/kontekst.h"
#include "model/lista_elementow.h"
#include "model/parametry_systemu.h"
#include "model/slowniki.h"
#include "platform/baza/dialekt.h"
#include "tests/wspolne/baza_testowa.h"

namespace {

constexpr OpisPola kPola[] = {{"Id", TypPola::Calkowite}, {"Nazwa", TypPola::Tekst}};

// The smallest record there can be, with shop copies.
class Rzecz final : public TDmVLTElement {
 public:
  explicit Rzecz(KontekstSesji& context) : TDmVLTElement(context, kPola) {}
  void UstawNazwe(const char* nazwa) { Query.FieldByName("Nazwa").SetString(QString::fromUtf8(nazwa)); }
  QString Nazwa() const { return Query.FieldByName("Nazwa").AsString(); }
  bool zepsuta = false;
  QString slady;

 protected:
  const char* IdFieldName() const override { return "Id"; }
  bool ExtraUnsavedTest() const override { return zepsuta; }
  void SetLoadParams(int id) override {
    Query.SetSql("select Id, Nazwa from T where Id = :Id");
    Query.SetParam("Id", id);
  }
  void ClearDetails() override { slady += u'c'; }
  void AfterLoad(bool isNew, int) override { slady += isNew ? u'n' : u'l'; }
  int InsertRecord() override {
    const int id = Context.baza.WstawOdRazu("Id", "insert into T (Nazwa) values (:Nazwa)",
                                            {{"Nazwa", Query.FieldByName("Nazwa").Value()}});
    if (zepsuta) throw EVLTWDError(2007);
    return id;
  }
  void UpdateRecord(int id) override {
    Context.baza.ExecSQL("update T set Nazwa = :Nazwa where Id = :Id",
                         {{"Nazwa", Query.FieldByName("Nazwa").Value()}, {"Id", id}});
    if (zepsuta) throw EVLTWDError(2007);
  }
  void PrepareCopyQuery() override {
    Query.SetSql("select Id, Nazwa from T where Id = :Id");
    Query.SetParam("Id", KopiaId());
  }
  void AfterCopyLoad(bool asNew) override { slady += asNew ? u'N' : u'k'; }
};

class ListaRzeczy final : public TDmVLTListaElementow {
 public:
  explicit ListaRzeczy(KontekstSesji& context) : TDmVLTListaElementow(context, kPola, "Id") {}

 protected:
  void SetDefaultParams() override { Query.SetSql("select Id, Nazwa from T order by Nazwa"); }
  void FillRowFromElement(const TDmVLTElement& element) override {
    Query.FieldByName("Nazwa").SetString(static_cast<const Rzecz&>(element).Nazwa());
  }
  std::unique_ptr<TDmVLTElement> CreateElement() override { return std::make_unique<Rzecz>(Context); }
};

class Element : public testing::Test {
 protected:
  void SetUp() override {
    b.baza.ExecSQL("create table T (Id " + b.baza.Jezyk().TypAutoKlucz() + ", Nazwa varchar(20))");
    for (const char* nazwa : {"c", "a", "b"})
      b.baza.ExecSQL("insert into T (Nazwa) values (:Nazwa)", {{"Nazwa", std::string(nazwa)}});
  }
  template <typename Praca>
  static int Kod(Praca&& praca) {
    try {
      praca();
    } catch (const EVLTWDError& blad) {
      return blad.MacCode();
    }
    return 0;
  }
  long long Ile() { return b.Liczba("select count(*) from T"); }

  BazaTestowa b;
  ParametrySystemu parametry;
  KontekstSesji kontekst{b.baza, parametry};
  Rzecz rzecz{kontekst};
};

TEST_F(Element, ZyjeOdNowegoDoZapisanego) {
  rzecz.Nowy();
  EXPECT_EQ(rzecz.Id(), -1);
  rzecz.UstawNazwe("x");
  EXPECT_TRUE(rzecz.CzyZmieniony());
  EXPECT_EQ(rzecz.Zapisz(), 4);
  EXPECT_FALSE(rzecz.CzyNowy());
  EXPECT_FALSE(rzecz.CzyZmieniony());
  rzecz.UstawNazwe("y");
  EXPECT_EQ(rzecz.Zapisz(), 4);
  rzecz.Wczytaj(2);
  rzecz.Wczytaj(4);
  EXPECT_EQ(rzecz.Nazwa(), QStringLiteral("y"));
  EXPECT_EQ(rzecz.slady, QStringLiteral("cnclcl"));
  EXPECT_EQ(Kod([&] { rzecz.Wczytaj(99); }), 2001);
  EXPECT_TRUE(rzecz.Query.Active());
  EXPECT_EQ(Kod([&] { rzecz.Zapisz(); }), 2001);
  EXPECT_FALSE(rzecz.Edytuj());
  struct Formularz final : TFmVLTFormularzElementu {
    bool PokazModalnie() override { return true; }
  };
  kontekst.fabrykaFormularzy = [](TDmVLTElement&) { return std::make_unique<Formularz>(); };
  EXPECT_TRUE(rzecz.Edytuj());
}

TEST_F(Element, NieudanyZapisZostawiaNowyNowymIDajeSiePowtorzyc) {
  for (const bool wTransakcji : {false, true}) {
    SCOPED_TRACE(wTransakcji);
    const long long przedtem = Ile();
    if (wTransakcji) b.baza.StartTransakcji();
    rzecz.Nowy();
    rzecz.UstawNazwe("z");
    rzecz.zepsuta = true;
    EXPECT_EQ(Kod([&] { rzecz.Zapisz(); }), 2007);
    EXPECT_EQ(b.baza.GetCzyWTransakcji(), wTransakcji);
    EXPECT_TRUE(rzecz.CzyNowy());
    EXPECT_EQ(Ile(), przedtem);
    rzecz.zepsuta = false;
    EXPECT_GT(rzecz.Zapisz(), 0);
    EXPECT_EQ(b.baza.GetCzyWTransakcji(), wTransakcji);  // only the opener commits
    rzecz.zepsuta = true;
    EXPECT_TRUE(rzecz.CzyNiezapisany());
    rzecz.zepsuta = false;
    if (wTransakcji) b.baza.KoniecTransakcji();
    EXPECT_EQ(Ile(), przedtem + 1);
  }
}

TEST_F(Element, KopieZeSklepu) {
  EXPECT_EQ(Kod([&] { rzecz.WczytajKopie(-1, 2, true); }), 2034);
  EXPECT_EQ(Kod([&] { rzecz.WczytajKopie(0, 99, true); }), 2031);
  TDmVLTAsortyment bezKopii(kontekst);
  EXPECT_EQ(Kod([&] { bezKopii.WczytajKopie(0, 2, true); }), 2032);
  rzecz.WczytajKopie(0, 2, false);
  EXPECT_TRUE(rzecz.CzyKopia());
  EXPECT_EQ(Kod([&] { rzecz.Zapisz(); }), 2033);
  rzecz.slady.clear();
  rzecz.WczytajKopie(0, 2, true);
  EXPECT_EQ(rzecz.slady, QStringLiteral("cN"));
  EXPECT_FALSE(rzecz.CzyKopia());
  EXPECT_EQ(rzecz.Zapisz(), 4);
  EXPECT_EQ(b.Tekst("select Nazwa from T where Id = 4"), QStringLiteral("a"));
}

TEST_F(Element, ListaMaKursorIZnajduje) {
  ListaRzeczy lista(kontekst);
  lista.UstawPozycje(-1);
  EXPECT_EQ(Kod([&] { lista.UstawPozycje(0); }), 2003);
  EXPECT_FALSE(lista.Znajdz(1));
  EXPECT_EQ(lista.Pozycja(), -1);
  lista.Otworz();
  EXPECT_EQ(lista.Ilosc(), 3);
  EXPECT_EQ(lista.IdBiezacego(), 2);  // "a"
  EXPECT_EQ(Kod([&] { lista.UstawPozycje(-1); }), 2003);
  EXPECT_EQ(Kod([&] { lista.UstawPozycje(3); }), 2003);
  EXPECT_TRUE(lista.Znajdz(1));
  EXPECT_EQ(lista.Pozycja(), 2);
  lista.UstawPozycje(0);
  EXPECT_FALSE(lista.Znajdz(77));
  EXPECT_EQ(lista.Pozycja(), 2);

  rzecz.Nowy();
  rzecz.UstawNazwe("0");
  lista.DodajElement(rzecz.Zapisz());
  EXPECT_EQ(lista.Pozycja(), 3);
  EXPECT_TRUE(lista.Znajdz(2));
  EXPECT_TRUE(lista.Znajdz(4));
  EXPECT_EQ(lista.Pozycja(), 3);
  lista.OnSetParams = [](TKMQuery& query) { query.SetSql("select Id, Nazwa from T where Nazwa = 'b'"); };
  lista.Otworz();
  EXPECT_EQ(lista.Ilosc(), 1);
  EXPECT_FALSE(lista.Znajdz(1));
}

}  // namespace
