-- Polecenia programu w słowach T-SQL, w kolejności, w jakiej wysyła je po raz pierwszy.
-- :Nazwa stoi w miejscu wartości: serwer dostaje ją osobno. Transakcje zaczyna i kończy sterownik.
-- Żaden serwer tej rodziny ich jeszcze nie wykonał: zobacz docs/serwer.md.
-- Pilnuje ich test tests/tsql. Gdy tekst zmienia się celowo, ZORVIK_ZAPISZ_TSQL=1 test_tsql zapisuje plik na nowo.

-- ==== Połączenie i transakcje ====

set transaction isolation level read committed;

set xact_abort off;

set lock_timeout 15000;

select count(*)
  from (select 1 as A) X
  left outer join (select 1 as A) Y on (X.A = Y.A);

select db_name();

declare @blokada nvarchar(255), @wynik int;
select @blokada = 'zorvik ' + schema_name(), @wynik = count(*)
  from sys.tables;
exec @wynik = sp_getapplock @blokada, 'Exclusive', 'Transaction';
if @wynik < 0 raiserror (N'Inny import do tej bazy trwa zbyt długo', 16, 1);
select @wynik;

select current_transaction_id();

save transaction p1;

rollback transaction p1;

set transaction isolation level snapshot;

-- ==== Nowa baza z danymi pokazowymi ====

select table_name
  from information_schema.tables
  where table_schema = schema_name()
  and table_type = 'BASE TABLE'
  order by 1;

create table Asort (
    AsId int identity primary key,
    Nazwa nvarchar(850) collate Latin1_General_BIN2 not null);

create index AsortNazwa on Asort (Nazwa);

create table JM (
    JMId int identity primary key,
    Nazwa nvarchar(850) collate Latin1_General_BIN2 not null,
    Precyzja int not null default 0);

create index JMNazwa on JM (Nazwa);

create table Vat (
    Stawka int not null primary key);

create table Magazyn (
    MagId int identity primary key,
    Nazwa nvarchar(850) collate Latin1_General_BIN2 not null);

create table Kategoria (
    KatId int identity primary key,
    Nazwa nvarchar(850) collate Latin1_General_BIN2 not null);

create index KategoriaNazwa on Kategoria (Nazwa);

create table Parametr (
    ParId int identity primary key,
    Nazwa nvarchar(850) collate Latin1_General_BIN2 not null,
    Typ int not null default 0,
    Od float not null default 0,
    Do float not null default 0);

create index ParametrNazwa on Parametr (Nazwa);

create table ParWartosc (
    ParId int not null references Parametr (ParId),
    Kolejnosc int not null,
    Wartosc nvarchar(850) collate Latin1_General_BIN2 not null,
    primary key (ParId, Kolejnosc));

create table KatParam (
    KatId int not null references Kategoria (KatId),
    ParId int not null references Parametr (ParId),
    Kolejnosc int not null default 0,
    primary key (KatId, ParId));

create table KodWazony (
    KWId int identity primary key,
    Nazwa nvarchar(850) collate Latin1_General_BIN2 not null,
    Prefix int not null,
    CzescStala int not null,
    WartoscWKodzie int not null default 0,
    DodKontrola int not null default 0);

create table Kontrahent (
    KontrId int identity primary key,
    AkwId int default 0,
    Nazwa nvarchar(850) collate Latin1_General_BIN2 not null,
    NaPrzelewie1 nvarchar(850) collate Latin1_General_BIN2 default '',
    NaPrzelewie2 nvarchar(850) collate Latin1_General_BIN2 default '',
    Skrot nvarchar(850) collate Latin1_General_BIN2 default '',
    Ulica nvarchar(850) collate Latin1_General_BIN2 default '',
    Kod nvarchar(850) collate Latin1_General_BIN2 default '',
    Miasto nvarchar(850) collate Latin1_General_BIN2 default '',
    Telefon nvarchar(850) collate Latin1_General_BIN2 default '',
    Fax nvarchar(850) collate Latin1_General_BIN2 default '',
    EMail nvarchar(850) collate Latin1_General_BIN2 default '',
    Bank nvarchar(850) collate Latin1_General_BIN2 default '',
    Konto nvarchar(850) collate Latin1_General_BIN2 default '',
    NIP nvarchar(850) collate Latin1_General_BIN2 default '',
    Staly int default 0,
    Dostawca int default 0,
    RabatDost float default 0,
    FormaPlatDost int default 0,
    TermPlatDost int default 0,
    CzasRealZam int default 0,
    Producent int default 0,
    Odbiorca int default 0,
    RabatOdb float default 0,
    FormaPlatOdb int default 0,
    TermPlatOdb int default 0,
    MaxKredyt float default 0,
    MaxPoTermPlat int default 0,
    KodKarty nvarchar(850) collate Latin1_General_BIN2 default '',
    KartaAktywna int default 0,
    TermWaznKarty datetime2(0),
    PoziomRabatu int default 0,
    NrAnalityki nvarchar(850) collate Latin1_General_BIN2 default '',
    KodKontr nvarchar(850) collate Latin1_General_BIN2 default '',
    ZakPracChron int default 0,
    Aktywny int not null default 1,
    Rezerwa1 nvarchar(850) collate Latin1_General_BIN2 default '',
    Rezerwa2 nvarchar(850) collate Latin1_General_BIN2 default '',
    Zmiana datetime2(0));

create index KontrahentNIP on Kontrahent (NIP);

create table Sklep (
    SklepId int not null primary key references Kontrahent (KontrId),
    NrSklepu int not null default 0,
    NrSeryjny nvarchar(850) collate Latin1_General_BIN2 default '',
    OstImport datetime2(0),
    WymImport datetime2(0),
    DataBO datetime2(0),
    KolejnyWDniuBO int default 0,
    PelnyImport int default 0,
    OstEksport datetime2(0),
    PotwEksport datetime2(0),
    MagId int references Magazyn (MagId));

create index SklepNumer on Sklep (NrSklepu);

create table Osoba (
    KontrId int not null references Kontrahent (KontrId),
    Nazwisko nvarchar(850) collate Latin1_General_BIN2 not null,
    OsId int identity primary key);

create index OsobaKontr on Osoba (KontrId);

create table Towar (
    TowId int identity primary key,
    AsId int references Asort (AsId),
    JMId int references JM (JMId),
    KatId int references Kategoria (KatId),
    Producent int references Kontrahent (KontrId),
    Nazwa nvarchar(850) collate Latin1_General_BIN2 not null,
    Skrot nvarchar(850) collate Latin1_General_BIN2 not null,
    Kod nvarchar(850) collate Latin1_General_BIN2 not null,
    TypTowaru int default 0,
    Indeks1 nvarchar(850) collate Latin1_General_BIN2 default '',
    Indeks2 nvarchar(850) collate Latin1_General_BIN2 default '',
    Opis1 nvarchar(850) collate Latin1_General_BIN2 default '',
    Opis2 nvarchar(850) collate Latin1_General_BIN2 default '',
    Opis3 nvarchar(850) collate Latin1_General_BIN2 default '',
    Opis4 nvarchar(850) collate Latin1_General_BIN2 default '',
    TermWazn int default 0,
    Marza float default 0,
    HurtRabat float default 0,
    NocNarzut float default 0,
    OpcjaMarzy int default 0,
    OpcjaRabatu int default 0,
    OpcjaNarzutu int default 0,
    CenaEw float default 0,
    CenaDet float default 0,
    CenaHurt float default 0,
    CenaNoc float default 0,
    CenaDod float default 0,
    CenaOtwarta int default 0,
    PoziomCen int default 0,
    PrefPLU int default 0,
    Stawka int,
    IleWZgrzewce float default 0,
    IleWCalosci float default 0,
    KodZgrzewki nvarchar(850) collate Latin1_General_BIN2 default '',
    Aktywny int not null default 1,
    Zmiana datetime2(0),
    Waga int default 0,
    Szerokosc int default 0,
    Wysokosc int default 0,
    Glebokosc int default 0,
    CKU nvarchar(850) collate Latin1_General_BIN2 default '',
    BlokDostawcow int default 0,
    BlokCenyZak int default 0,
    BlokCenSp int default 0,
    BlokZmian int default 0,
    Rezerwa1 nvarchar(850) collate Latin1_General_BIN2 default '',
    Rezerwa2 nvarchar(850) collate Latin1_General_BIN2 default '');

create index TowarKod on Towar (Kod);

create index TowarSkrot on Towar (Skrot);

create index TowarNazwa on Towar (Nazwa);

create index TowarCKU on Towar (CKU)
  where CKU <> '';

create table KodDod (
    TowId int not null references Towar (TowId),
    Kolejnosc int not null,
    Skrot nvarchar(850) collate Latin1_General_BIN2 not null default '',
    Kod nvarchar(850) collate Latin1_General_BIN2 not null,
    PoziomCen int default 0,
    PrefPLU int default 0,
    IleWKodzie float default 0,
    primary key (TowId, Kolejnosc));

create index KodDodKod on KodDod (Kod);

create index KodDodSkrot on KodDod (Skrot);

create table Istw (
    TowId int not null references Towar (TowId),
    MagId int not null references Magazyn (MagId),
    StanMag float not null default 0,
    BlokadaMag float not null default 0,
    CenaMag float default 0,
    StanMin float default 0,
    StanMax float default 0,
    primary key (TowId, MagId));

create table Powiazanie (
    TowId int not null primary key references Towar (TowId),
    OpakId int not null references Towar (TowId),
    IleWOpak float default 0,
    Tandem int default 0);

create table TowWartosc (
    TowId int not null references Towar (TowId),
    ParId int not null references Parametr (ParId),
    Wartosc float not null default 0,
    primary key (TowId, ParId));

create table TowDostawca (
    TowId int not null references Towar (TowId),
    KontrId int not null references Kontrahent (KontrId),
    Kolejnosc int not null default 0,
    primary key (TowId, KontrId));

create table Notatki (
    TowId int not null references Towar (TowId),
    Kolejnosc int not null,
    Tekst nvarchar(max) collate Latin1_General_BIN2,
    KoniecLinii int default 0,
    primary key (TowId, Kolejnosc));

create table KasTow (
    KasaId int not null,
    TowId int not null references Towar (TowId),
    KodWyslany nvarchar(850) collate Latin1_General_BIN2 default '',
    ZmianyCen int default 0,
    ZmianyInne int default 0,
    Wyslany int default 0,
    primary key (KasaId, TowId));

create index KasTowTow on KasTow (TowId);

create index KasTowKod on KasTow (KodWyslany);

create table SklepFlagi (
    SklepId int not null references Sklep (SklepId),
    TowId int not null references Towar (TowId),
    Zmiana datetime2(0),
    primary key (SklepId, TowId));

create index SklepFlagiTow on SklepFlagi (TowId);

create table Konfiguracja (
    Nazwa nvarchar(850) collate Latin1_General_BIN2 not null,
    Kolejnosc int not null,
    Parametr nvarchar(850) collate Latin1_General_BIN2 not null,
    Wartosc nvarchar(max) collate Latin1_General_BIN2,
    primary key (Nazwa, Kolejnosc));

create table DziennikZmian (
    Czas datetime2(0) not null,
    Tabela int not null,
    Opis nvarchar(max) collate Latin1_General_BIN2,
    Id1 int,
    Id2 int);

create trigger TowarIstw on Towar after insert as
set nocount on;
insert into Istw (TowId, MagId)
select N.TowId, M.MagId
  from inserted N, Magazyn M;

create trigger MagazynIstw on Magazyn after insert as
set nocount on;
insert into Istw (TowId, MagId)
select T.TowId, N.MagId
  from Towar T, inserted N;

insert into Vat (Stawka)
  values (:Stawka);

insert into Konfiguracja (Nazwa, Kolejnosc, Parametr, Wartosc)
  values (:Nazwa, :Kolejnosc, :Parametr, :Wartosc);

insert into Magazyn (Nazwa)
  values ('Sklep');

insert into Magazyn (Nazwa)
  values ('Zaplecze');

insert into JM (Nazwa, Precyzja)
  values ('szt', 0);

insert into JM (Nazwa, Precyzja)
  values ('kg', 3);

insert into KodWazony (Nazwa, Prefix, CzescStala)
  values ('KW typ 1', 27, 4);

insert into Asort (Nazwa)
  values (N'Nabiał');

insert into Asort (Nazwa)
  values ('Pieczywo');

insert into Asort (Nazwa)
  values ('Napoje');

insert into Asort (Nazwa)
  values ('Piwo');

insert into Asort (Nazwa)
  values (N'Słodycze');

insert into Asort (Nazwa)
  values ('Produkty sypkie');

insert into Asort (Nazwa)
  values ('Konserwy i przetwory');

insert into Asort (Nazwa)
  values ('Kawa i herbata');

insert into Asort (Nazwa)
  values ('Chemia gospodarcza');

insert into Asort (Nazwa)
  values (N'Różne');

insert into Kategoria (Nazwa)
  values ('Napoje');

insert into Kategoria (Nazwa)
  values ('Piwo');

insert into Kategoria (Nazwa)
  values ('Kawa');

insert into Parametr (Nazwa, Typ, Od, Do)
  values (N'Pojemność ml', 1, 100, 5000);

insert into Parametr (Nazwa, Typ, Od, Do)
  values ('Ekstrakt', 1, 5, 30);

insert into Parametr (Nazwa, Typ)
  values ('Palenie', 0);

insert into ParWartosc (ParId, Kolejnosc, Wartosc)
  values (3, 0, 'jasne');

insert into ParWartosc (ParId, Kolejnosc, Wartosc)
  values (3, 1, N'średnie');

insert into ParWartosc (ParId, Kolejnosc, Wartosc)
  values (3, 2, 'ciemne');

insert into KatParam (KatId, ParId, Kolejnosc)
  values (1, 1, 0);

insert into KatParam (KatId, ParId, Kolejnosc)
  values (2, 2, 0);

insert into KatParam (KatId, ParId, Kolejnosc)
  values (3, 3, 0);

insert into Kontrahent (Nazwa, Skrot, Ulica, Kod, Miasto, NIP, Staly, Dostawca, Producent, Zmiana)
    values (:Nazwa, :Skrot, :Ulica, :Kod, :Miasto, :NIP, 1, 1, :Producent, getdate());

set nocount on;
insert into Towar (AsId, JMId, KatId, Producent, Nazwa, Skrot, Kod, Indeks2, CenaEw, CenaDet, Stawka,
    IleWZgrzewce, Zmiana)
  values (:AsId, 1, :KatId, :Producent, :Nazwa, :Skrot, :Kod, :Indeks2, :CenaEw, :CenaDet, :Stawka,
    :IleWZgrzewce, getdate());
select cast(scope_identity() as int);

update Istw
  set StanMag = :StanMag
  where TowId = :TowId
  and MagId = 1;

insert into TowDostawca (TowId, KontrId, Kolejnosc)
  values (:TowId, :KontrId, :Kolejnosc);

insert into TowWartosc (TowId, ParId, Wartosc)
  values (:TowId, :ParId, :Wartosc);

select Parametr, Wartosc
  from Konfiguracja
  where Nazwa = :Nazwa
  order by Kolejnosc;

-- ==== Sprawdzenie bazy ====

select table_name, column_name, data_type, case character_maximum_length when -1 then 1073741823 else
    isnull(character_maximum_length, 0) end
  from information_schema.columns
  where table_schema = schema_name()
  order by table_name, ordinal_position;

select count(*)
  from Asort
  where 1 = 0;

insert into Asort (Nazwa)
select Nazwa
  from Asort
  where 1 = 0;

update Asort
  set Nazwa = Nazwa
  where 1 = 0;

select count(*)
  from JM
  where 1 = 0;

insert into JM (Nazwa)
select Nazwa
  from JM
  where 1 = 0;

update JM
  set Nazwa = Nazwa
  where 1 = 0;

select count(*)
  from Vat
  where 1 = 0;

insert into Vat (Stawka)
select Stawka
  from Vat
  where 1 = 0;

delete from Vat
  where 1 = 0;

select count(*)
  from Magazyn
  where 1 = 0;

insert into Magazyn (Nazwa)
select Nazwa
  from Magazyn
  where 1 = 0;

update Magazyn
  set Nazwa = Nazwa
  where 1 = 0;

select count(*)
  from Kategoria
  where 1 = 0;

insert into Kategoria (Nazwa)
select Nazwa
  from Kategoria
  where 1 = 0;

update Kategoria
  set Nazwa = Nazwa
  where 1 = 0;

select count(*)
  from Parametr
  where 1 = 0;

insert into Parametr (Nazwa)
select Nazwa
  from Parametr
  where 1 = 0;

update Parametr
  set Nazwa = Nazwa
  where 1 = 0;

select count(*)
  from ParWartosc
  where 1 = 0;

insert into ParWartosc (Wartosc)
select Wartosc
  from ParWartosc
  where 1 = 0;

delete from ParWartosc
  where 1 = 0;

select count(*)
  from KatParam
  where 1 = 0;

insert into KatParam (Kolejnosc)
select Kolejnosc
  from KatParam
  where 1 = 0;

delete from KatParam
  where 1 = 0;

select count(*)
  from KodWazony
  where 1 = 0;

insert into KodWazony (Nazwa)
select Nazwa
  from KodWazony
  where 1 = 0;

update KodWazony
  set Nazwa = Nazwa
  where 1 = 0;

select count(*)
  from Kontrahent
  where 1 = 0;

insert into Kontrahent (Nazwa)
select Nazwa
  from Kontrahent
  where 1 = 0;

update Kontrahent
  set Nazwa = Nazwa
  where 1 = 0;

select count(*)
  from Sklep
  where 1 = 0;

insert into Sklep (NrSklepu)
select NrSklepu
  from Sklep
  where 1 = 0;

update Sklep
  set NrSklepu = NrSklepu
  where 1 = 0;

delete from Sklep
  where 1 = 0;

select count(*)
  from Osoba
  where 1 = 0;

insert into Osoba (Nazwisko)
select Nazwisko
  from Osoba
  where 1 = 0;

delete from Osoba
  where 1 = 0;

select count(*)
  from Towar
  where 1 = 0;

insert into Towar (Nazwa)
select Nazwa
  from Towar
  where 1 = 0;

update Towar
  set Nazwa = Nazwa
  where 1 = 0;

select count(*)
  from KodDod
  where 1 = 0;

insert into KodDod (Kod)
select Kod
  from KodDod
  where 1 = 0;

update KodDod
  set Kod = Kod
  where 1 = 0;

delete from KodDod
  where 1 = 0;

select count(*)
  from Istw
  where 1 = 0;

insert into Istw (StanMag)
select StanMag
  from Istw
  where 1 = 0;

update Istw
  set StanMag = StanMag
  where 1 = 0;

select count(*)
  from Powiazanie
  where 1 = 0;

insert into Powiazanie (Tandem)
select Tandem
  from Powiazanie
  where 1 = 0;

delete from Powiazanie
  where 1 = 0;

select count(*)
  from TowWartosc
  where 1 = 0;

insert into TowWartosc (Wartosc)
select Wartosc
  from TowWartosc
  where 1 = 0;

delete from TowWartosc
  where 1 = 0;

select count(*)
  from TowDostawca
  where 1 = 0;

insert into TowDostawca (Kolejnosc)
select Kolejnosc
  from TowDostawca
  where 1 = 0;

delete from TowDostawca
  where 1 = 0;

select count(*)
  from Notatki
  where 1 = 0;

insert into Notatki (Tekst)
select Tekst
  from Notatki
  where 1 = 0;

delete from Notatki
  where 1 = 0;

select count(*)
  from KasTow
  where 1 = 0;

update KasTow
  set ZmianyInne = ZmianyInne
  where 1 = 0;

select count(*)
  from SklepFlagi
  where 1 = 0;

update SklepFlagi
  set Zmiana = Zmiana
  where 1 = 0;

delete from SklepFlagi
  where 1 = 0;

select count(*)
  from Konfiguracja
  where 1 = 0;

insert into Konfiguracja (Wartosc)
select Wartosc
  from Konfiguracja
  where 1 = 0;

delete from Konfiguracja
  where 1 = 0;

select count(*)
  from DziennikZmian
  where 1 = 0;

insert into DziennikZmian (Opis)
select Opis
  from DziennikZmian
  where 1 = 0;

select T.name, C.name
  from sys.index_columns I, sys.columns C, sys.tables T
  where I.key_ordinal = 1
  and C.object_id = I.object_id
  and C.column_id = I.column_id
  and T.object_id = I.object_id
  and T.schema_id = schema_id();

select T.name, W.name
  from sys.triggers W, sys.tables T
  where W.parent_id = T.object_id
  and W.is_disabled = 0
  and T.schema_id = schema_id();

-- ==== Ustawienia ====

delete from Konfiguracja
  where Nazwa = :Nazwa;

-- ==== Import kontrahentów ====

select count(*)
  from Kontrahent;

select KontrId, NIP, Ulica, Miasto
  from Kontrahent
  order by KontrId;

select K.*, S.SklepId, S.NrSklepu, S.NrSeryjny, S.MagId, S.OstImport, S.WymImport, S.DataBO,
    S.KolejnyWDniuBO, S.PelnyImport, S.OstEksport, S.PotwEksport
  from Kontrahent K
  left outer join Sklep S on (K.KontrId = S.SklepId)
  where K.KontrId = :KontrId;

select Nazwisko
  from Osoba
  where KontrId = :KontrId
  order by OsId;

select K.*, S.SklepId, S.NrSklepu, S.NrSeryjny, S.MagId, S.OstImport, S.WymImport, S.DataBO,
    S.KolejnyWDniuBO, S.PelnyImport, S.OstEksport, S.PotwEksport
  from Kontrahent K with (updlock, rowlock)
  left outer join Sklep S on (K.KontrId = S.SklepId)
  where K.KontrId = :KontrId;

update Kontrahent
  set AkwId = :AkwId, Nazwa = :Nazwa, NaPrzelewie1 = :NaPrzelewie1, NaPrzelewie2 = :NaPrzelewie2,
    Skrot = :Skrot, Ulica = :Ulica, Kod = :Kod, Miasto = :Miasto, Telefon = :Telefon, Fax = :Fax,
    EMail = :EMail, Bank = :Bank, Konto = :Konto, NIP = :NIP, Staly = :Staly, Dostawca = :Dostawca,
    RabatDost = :RabatDost, FormaPlatDost = :FormaPlatDost, TermPlatDost = :TermPlatDost,
    CzasRealZam = :CzasRealZam, Producent = :Producent, Odbiorca = :Odbiorca, RabatOdb = :RabatOdb,
    FormaPlatOdb = :FormaPlatOdb, TermPlatOdb = :TermPlatOdb, MaxKredyt = :MaxKredyt,
    MaxPoTermPlat = :MaxPoTermPlat, KodKarty = :KodKarty, KartaAktywna = :KartaAktywna,
    TermWaznKarty = :TermWaznKarty, PoziomRabatu = :PoziomRabatu, NrAnalityki = :NrAnalityki,
    KodKontr = :KodKontr, ZakPracChron = :ZakPracChron, Aktywny = :Aktywny, Rezerwa1 = :Rezerwa1,
    Rezerwa2 = :Rezerwa2, Zmiana = getdate()
  where KontrId = :KontrId;

insert into DziennikZmian (Czas, Tabela, Opis, Id1, Id2)
  values (getdate(), :Tabela, :Opis, :Id1, :Id2);

set nocount on;
insert into Kontrahent ( AkwId, Nazwa, NaPrzelewie1, NaPrzelewie2, Skrot, Ulica, Kod, Miasto,
    Telefon, Fax, EMail, Bank, Konto, NIP, Staly, Dostawca, RabatDost, FormaPlatDost, TermPlatDost,
    CzasRealZam, Producent, Odbiorca, RabatOdb, FormaPlatOdb, TermPlatOdb, MaxKredyt, MaxPoTermPlat,
    KodKarty, KartaAktywna, TermWaznKarty, PoziomRabatu, NrAnalityki, KodKontr, ZakPracChron,
    Aktywny, Rezerwa1, Rezerwa2, Zmiana)
select :AkwId, :Nazwa, :NaPrzelewie1, :NaPrzelewie2, :Skrot, :Ulica, :Kod, :Miasto, :Telefon, :Fax,
    :EMail, :Bank, :Konto, :NIP, :Staly, :Dostawca, :RabatDost, :FormaPlatDost, :TermPlatDost,
    :CzasRealZam, :Producent, :Odbiorca, :RabatOdb, :FormaPlatOdb, :TermPlatOdb, :MaxKredyt,
    :MaxPoTermPlat, :KodKarty, :KartaAktywna, :TermWaznKarty, :PoziomRabatu, :NrAnalityki, :KodKontr,
    :ZakPracChron, :Aktywny, :Rezerwa1, :Rezerwa2, getdate();
select cast(scope_identity() as int);

insert into Osoba (KontrId, Nazwisko)
  values (:KontrId, :Nazwisko);

select max(NrSklepu)
  from Sklep;

insert into Sklep (SklepId, NrSklepu, NrSeryjny, WymImport, PelnyImport)
  values (:SklepId, :NrSklepu, :NrSeryjny, null, 1);

delete from Osoba
  where KontrId = :KontrId;

select S.SklepId, S.NrSklepu, S.NrSeryjny, S.MagId, S.OstImport, S.WymImport, S.DataBO,
    S.KolejnyWDniuBO, S.PelnyImport, S.OstEksport, S.PotwEksport
  from Sklep S with (updlock, rowlock)
  where S.SklepId = :KontrId;

select S.SklepId, K.Nazwa
  from Sklep S, Kontrahent K
  where S.SklepId = K.KontrId
  and S.NrSklepu = :NrSklepu
  and S.SklepId <> :SklepId
  order by S.SklepId;

-- ==== Import towarów ====

select (select count(*) from Towar), (select count(*) from KodDod);

select TowId, Nazwa, Kod, Skrot
  from Towar;

select TowId, Kod, Skrot
  from KodDod;

select MagId, Nazwa
  from Magazyn
  order by Nazwa, MagId;

select Stawka
  from Vat;

select AsId, Nazwa
  from Asort
  order by AsId;

select JMId, Nazwa, Precyzja
  from JM
  order by JMId;

select KatId, Nazwa
  from Kategoria
  order by KatId;

select KatId, ParId
  from KatParam
  order by KatId, Kolejnosc, ParId;

select ParId, Nazwa, Typ, Od, Do
  from Parametr
  order by ParId;

select ParId, Wartosc
  from ParWartosc
  order by ParId, Kolejnosc;

select KWId, Nazwa, Prefix, CzescStala, WartoscWKodzie, DodKontrola
  from KodWazony
  order by KWId;

select TowId, StanMag
  from ISTW
  where MagId = :MagId
  and TowId in (:Id0, :Id1, /* ... */ :Id99);

select T.*, P.OpakId, P.IleWOpak, P.Tandem
  from Towar T
  left outer join Powiazanie P on (T.TowId = P.TowId)
  where T.TowId in (:Id0, :Id1, /* ... */ :Id99);

select TowId, Kolejnosc, Skrot, Kod, PoziomCen, PrefPLU, IleWKodzie
  from KodDod
  where TowId in (:Id0, :Id1, /* ... */ :Id99)
  order by TowId, Kolejnosc;

select TowId, ParId, Wartosc
  from TowWartosc
  where TowId in (:Id0, :Id1, /* ... */ :Id99)
  order by TowId, ParId;

select D.TowId, D.KontrId, K.NIP
  from TowDostawca D, Kontrahent K
  where D.KontrId = K.KontrId
  and D.TowId in (:Id0, :Id1, /* ... */ :Id99)
  order by D.TowId, D.Kolejnosc, D.KontrId;

set nocount on;
insert into Towar (AsId, JMId, KatId, Producent, Nazwa, Skrot, Kod, TypTowaru, Indeks1, Indeks2,
    Opis1, Opis2, Opis3, Opis4, TermWazn, Marza, HurtRabat, NocNarzut, OpcjaMarzy, OpcjaRabatu,
    OpcjaNarzutu, CenaEw, CenaDet, CenaHurt, CenaNoc, CenaDod, CenaOtwarta, PoziomCen, PrefPLU,
    Stawka, IleWZgrzewce, IleWCalosci, KodZgrzewki, Aktywny, Waga, Szerokosc, Wysokosc, Glebokosc,
    CKU, BlokDostawcow, BlokCenyZak, BlokCenSp, BlokZmian, Rezerwa1, Rezerwa2, Zmiana)
select :AsId, :JMId, :KatId, :Producent, :Nazwa, :Skrot, :Kod, :TypTowaru, :Indeks1, :Indeks2,
    :Opis1, :Opis2, :Opis3, :Opis4, :TermWazn, :Marza, :HurtRabat, :NocNarzut, :OpcjaMarzy,
    :OpcjaRabatu, :OpcjaNarzutu, :CenaEw, :CenaDet, :CenaHurt, :CenaNoc, :CenaDod, :CenaOtwarta,
    :PoziomCen, :PrefPLU, :Stawka, :IleWZgrzewce, :IleWCalosci, :KodZgrzewki, :Aktywny, :Waga,
    :Szerokosc, :Wysokosc, :Glebokosc, :CKU, :BlokDostawcow, :BlokCenyZak, :BlokCenSp, :BlokZmian,
    :Rezerwa1, :Rezerwa2, getdate();
select cast(scope_identity() as int);

insert into KodDod (TowId, Kolejnosc, Skrot, Kod, PoziomCen, PrefPLU, IleWKodzie)
  values (:TowId, :Kolejnosc, :Skrot, :Kod, :PoziomCen, :PrefPLU, :IleWKodzie);

update ISTW
  set StanMag = :StanMag
  where TowId = :TowId
  and MagId = :MagId;

select T.*, P.OpakId, P.IleWOpak, P.Tandem
  from Towar T with (updlock, rowlock)
  left outer join Powiazanie P on (T.TowId = P.TowId)
  where T.TowId in (:Id0, :Id1, /* ... */ :Id99);

update Towar
  set AsId = :AsId, JMId = :JMId, KatId = :KatId, Producent = :Producent, Nazwa = :Nazwa,
    Skrot = :Skrot, Kod = :Kod, TypTowaru = :TypTowaru, Indeks1 = :Indeks1, Indeks2 = :Indeks2,
    Opis1 = :Opis1, Opis2 = :Opis2, Opis3 = :Opis3, Opis4 = :Opis4, TermWazn = :TermWazn,
    Marza = :Marza, HurtRabat = :HurtRabat, NocNarzut = :NocNarzut, OpcjaMarzy = :OpcjaMarzy,
    OpcjaRabatu = :OpcjaRabatu, OpcjaNarzutu = :OpcjaNarzutu, CenaEw = :CenaEw, CenaDet = :CenaDet,
    CenaHurt = :CenaHurt, CenaNoc = :CenaNoc, CenaDod = :CenaDod, CenaOtwarta = :CenaOtwarta,
    PoziomCen = :PoziomCen, PrefPLU = :PrefPLU, Stawka = :Stawka, IleWZgrzewce = :IleWZgrzewce,
    IleWCalosci = :IleWCalosci, KodZgrzewki = :KodZgrzewki, Aktywny = :Aktywny, Waga = :Waga,
    Szerokosc = :Szerokosc, Wysokosc = :Wysokosc, Glebokosc = :Glebokosc, CKU = :CKU,
    BlokDostawcow = :BlokDostawcow, BlokCenyZak = :BlokCenyZak, BlokCenSp = :BlokCenSp,
    BlokZmian = :BlokZmian, Rezerwa1 = :Rezerwa1, Rezerwa2 = :Rezerwa2, Zmiana = getdate()
  where TowId = :TowId;

update KasTow
  set ZmianyCen = 1, ZmianyInne = 1
  where TowId = :TowId;

update SklepFlagi
  set Zmiana = getdate()
  where TowId = :TowId;

select AsId
  from Asort
  where Nazwa = :Nazwa
  and AsId <> :Id;

set nocount on;
insert into Asort (Nazwa)
  values (:Nazwa);
select cast(scope_identity() as int);

select JMId
  from JM
  where Nazwa = :Nazwa
  and JMId <> :Id;

set nocount on;
insert into JM (Nazwa, Precyzja)
  values (:Nazwa, :Precyzja);
select cast(scope_identity() as int);

save transaction p2;

select TypTowaru, CKU
  from Towar
  where TowId = :TowId;

select StanMag, BlokadaMag
  from Istw
  where TowId = :TowId
  order by TowId, MagId;

update Towar
  set Aktywny = 0, Zmiana = getdate()
  where TowId = :TowId;

select KatId
  from Kategoria
  where Nazwa = :Nazwa
  and KatId <> :Id;

set nocount on;
insert into Kategoria (Nazwa)
  values (:Nazwa);
select cast(scope_identity() as int);

select ParId
  from Parametr
  where Nazwa = :Nazwa
  and ParId <> :Id;

set nocount on;
insert into Parametr (Nazwa, Typ, Od, Do)
  values (:Nazwa, :Typ, :Od, :Do);
select cast(scope_identity() as int);

delete from ParWartosc
  where ParId = :ParId;

insert into ParWartosc (ParId, Kolejnosc, Wartosc)
  values (:ParId, :Kolejnosc, :Wartosc);

select KatId, Nazwa
  from Kategoria
  where KatId = :Id;

select ParId, Kolejnosc
  from KatParam
  where KatId = :KatId
  order by Kolejnosc, ParId;

insert into KatParam (KatId, ParId, Kolejnosc)
  values (:KatId, :ParId, :Kolejnosc);

select TowId
  from Towar
  where Nazwa=:Nazwa
  order by TowId;

set nocount on;
insert into KodWazony (Nazwa, Prefix, CzescStala, WartoscWKodzie, DodKontrola)
  values (:Nazwa, :Prefix, :CzescStala, :WartoscWKodzie, :DodKontrola);
select cast(scope_identity() as int);

select TowId, Nazwa, Aktywny
  from Towar
  where Kod = :Kod;

select T.TowId, T.Nazwa, T.Aktywny
  from KodDod K, Towar T
  where K.TowId = T.TowId
  and K.Kod = :Kod;

select T.*, P.OpakId, P.IleWOpak, P.Tandem
  from Towar T
  left outer join Powiazanie P on (T.TowId = P.TowId)
  where T.TowId = :TowId;

select TowId, Kolejnosc, Skrot, Kod, PoziomCen, PrefPLU, IleWKodzie
  from KodDod
  where TowId = :TowId
  order by Kolejnosc;

select TowId, ParId, Wartosc
  from TowWartosc
  where TowId = :TowId
  order by ParId;

select D.TowId, D.KontrId, K.NIP
  from TowDostawca D, Kontrahent K
  where D.KontrId = K.KontrId
  and D.TowId = :TowId
  order by D.Kolejnosc, D.KontrId;

select StanMag
  from ISTW
  where TowId = :TowId
  and MagId = :MagId;

select T.*, P.OpakId, P.IleWOpak, P.Tandem
  from Towar T with (updlock, rowlock)
  left outer join Powiazanie P on (T.TowId = P.TowId)
  where T.TowId = :TowId;

select TowId, Nazwa, Aktywny
  from Towar
  where Skrot = :Skrot
  and TowId <> :TowId
  order by TowId;

select T.TowId, T.Nazwa, T.Aktywny
  from Towar T, KodDod KD
  where T.TowId = KD.TowId
  and KD.Skrot = :Skrot
  and T.TowId <> :TowId
  order by T.TowId;

select KasaId
  from KasTow
  where TowId = :TowId
  and Wyslany <> 0;

update KodDod
  set PrefPLU = :PrefPLU, Skrot = :Skrot, PoziomCen = :PoziomCen, IleWKodzie = :IleWKodzie
  where TowId = :TowId
  and Kolejnosc = :Kolejnosc;

update KasTow
  set ZmianyCen = 1
  where TowId = :TowId;

delete from TowWartosc
  where TowId = :TowId;

select TowId, Nazwa, Aktywny
  from Towar
  where Skrot = :Skrot
  order by TowId;

select T.TowId, T.Nazwa, T.Aktywny
  from Towar T, KodDod KD
  where T.TowId = KD.TowId
  and KD.Skrot = :Skrot
  order by T.TowId;

select TowId
  from Towar
  where Kod = :Kod;

select TowId
  from KodDod
  where Kod = :Kod;

select Nazwa
  from Towar
  where Nazwa like :Wzor;

delete from Vat;

update KasTow
  set ZmianyInne = 1
  where TowId = :TowId;

-- ==== Eksport kontrahentów ====

select top 50000 KontrId
  from Kontrahent
  where KontrId > :Po
  order by KontrId;

select KontrId, AkwId, Nazwa, NaPrzelewie1, NaPrzelewie2, Skrot, Ulica, Kod, Miasto, Telefon, Fax,
    EMail, Bank, Konto, NIP, Staly, Dostawca, RabatDost, FormaPlatDost, TermPlatDost, CzasRealZam,
    Producent, Odbiorca, RabatOdb, FormaPlatOdb, TermPlatOdb, MaxKredyt, MaxPoTermPlat, KodKarty,
    KartaAktywna, TermWaznKarty, PoziomRabatu, NrAnalityki, KodKontr, ZakPracChron, Aktywny,
    Rezerwa1, Rezerwa2
  from Kontrahent
  where KontrId between :Od and :Do
  order by KontrId;

select SklepId
  from Sklep
  where SklepId between :Od and :Do
  order by SklepId;

select KontrId, Nazwisko
  from Osoba
  where KontrId between :Od and :Do
  order by KontrId, OsId;

-- ==== Eksport towarów ====

select top 50000 TowId
  from Towar
  where TowId > :Po
  order by TowId;

select AsId, Nazwa
  from Asort;

select JMId, Nazwa
  from JM;

select KontrId, NIP
  from Kontrahent
  where NIP <> ''
  order by KontrId;

select KatId, Nazwa
  from Kategoria;

select K.KatId, P.ParId, P.Nazwa, P.Typ, P.Od, P.Do
  from KatParam K, Parametr P
  where K.ParId = P.ParId
  order by K.KatId, K.Kolejnosc, K.ParId;

select TowId, Kod, Nazwa, Skrot, TypTowaru, Indeks1, Indeks2, Opis1, Opis2, Opis3, Opis4,
    IleWZgrzewce, IleWCalosci, TermWazn, PrefPLU, Marza, HurtRabat, NocNarzut, CenaEw, CenaDet,
    CenaHurt, CenaNoc, CenaDod, CenaOtwarta, Stawka, AsId, JMId, KatId, Producent, Aktywny
  from Towar
  where TowId between :Od and :Do
  order by TowId;

select TowId, Kod, Skrot, PrefPLU
  from KodDod
  where TowId between :Od and :Do
  order by TowId, Kolejnosc;

select TowId, ParId, Wartosc
  from TowWartosc
  where TowId between :Od and :Do
  order by TowId, ParId;

select TowId, KontrId
  from TowDostawca
  where TowId between :Od and :Do
  order by TowId, Kolejnosc, KontrId;

select TowId, StanMag
  from Istw
  where TowId between :Od and :Do
  order by TowId, MagId;

select TowId, StanMag
  from Istw
  where TowId between :Od and :Do
  and MagId = :MagId
  order by TowId;

-- ==== Formularze ====

update Sklep
  set NrSklepu = :NrSklepu, NrSeryjny = :NrSeryjny, WymImport = :WymImport,
    PelnyImport = :PelnyImport
  where SklepId = :SklepId;

delete from SklepFlagi
  where SklepId = :SklepId;

delete from Sklep
  where SklepId = :SklepId;

update Sklep
  set MagId = :MagId
  where SklepId = :SklepId;

update Sklep
  set MagId = :MagId, NrSklepu = :NrSklepu, NrSeryjny = :NrSeryjny, WymImport = :WymImport,
    PelnyImport = :PelnyImport
  where SklepId = :SklepId;

update Kontrahent
  set Aktywny = 0, Zmiana = getdate()
  where KontrId = :KontrId;

update Kontrahent
  set Aktywny = 1, Zmiana = getdate()
  where KontrId = :KontrId;

select KontrId, NIP, Nazwa
  from Kontrahent
  where KontrId = :KontrId;

select KontrId, NIP, Nazwa
  from Kontrahent
  where NIP like :Wzor
  order by KontrId;

select KontrId, NIP
  from Kontrahent
  order by KontrId;

select AsId
  from Asort
  where AsId = :AsId;

select JMId
  from JM
  where JMId = :JMId;

delete from KodDod
  where TowId = :TowId
  and Kolejnosc = :Kolejnosc;

select Tekst
  from Notatki
  where TowId = :TowId
  and Kolejnosc = 0;

select M.MagId, M.Nazwa, I.StanMag, I.BlokadaMag, I.CenaMag, I.StanMin, I.StanMax
  from Magazyn M
  left outer join Istw I on (M.MagId = I.MagId)
  and I.TowId = :TowId
  order by M.Nazwa, M.MagId;

select TowId, Nazwa, Aktywny
  from Towar
  where CKU = :CKU
  and TowId <> :TowId
  order by TowId;

select Aktywny
  from Towar
  where TowId = :TowId;

delete from Notatki
  where TowId = :TowId;

insert into Notatki (TowId, Kolejnosc, Tekst, KoniecLinii)
  values (:TowId, 0, :Tekst, 0);

delete from Powiazanie
  where TowId = :TowId;

insert into Powiazanie (TowId, OpakId, IleWOpak, Tandem)
  values (:TowId, :OpakId, :IleWOpak, :Tandem);

update Istw
  set CenaMag = :CenaMag, StanMin = :StanMin, StanMax = :StanMax
  where MagId = :MagId
  and TowId = :TowId;

delete from TowDostawca
  where TowId = :TowId;

select count(*)
  from KasTow
  where KodWyslany = :Kod;

update Towar
  set Aktywny = 1, Zmiana = getdate()
  where TowId = :TowId;

select TowId, Nazwa
  from Towar
  where TypTowaru = 1
  and Aktywny = 1
  order by Nazwa, TowId;

select TowId, Kod, Nazwa, Aktywny
  from Towar
  order by TowId;

select Kod
  from Towar;

select Kod
  from KodDod;

select ParId, Nazwa, Typ, Od, Do
  from Parametr
  where ParId = :Id;

select Wartosc
  from ParWartosc
  where ParId = :ParId
  order by Kolejnosc;

select KWId, Nazwa, Prefix, CzescStala, WartoscWKodzie, DodKontrola
  from KodWazony
  where KWId = :KWId;

update KodWazony
  set Nazwa = :Nazwa, Prefix = :Prefix, CzescStala = :CzescStala, WartoscWKodzie = :WartoscWKodzie,
    DodKontrola = :DodKontrola
  where KWId = :KWId;
