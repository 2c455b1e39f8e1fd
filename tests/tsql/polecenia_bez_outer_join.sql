-- Polecenia, które serwer bez złączenia "left outer join" dostaje w innej postaci niż w polecenia.sql.

-- ==== Import kontrahentów ====

select K.*, S.SklepId, S.NrSklepu, S.NrSeryjny, S.MagId, S.OstImport, S.WymImport, S.DataBO,
    S.KolejnyWDniuBO, S.PelnyImport, S.OstEksport, S.PotwEksport
  from Kontrahent K, Sklep S
  where K.KontrId = :KontrId
  and K.KontrId *= S.SklepId;

select K.*, S.SklepId, S.NrSklepu, S.NrSeryjny, S.MagId, S.OstImport, S.WymImport, S.DataBO,
    S.KolejnyWDniuBO, S.PelnyImport, S.OstEksport, S.PotwEksport
  from Kontrahent K with (updlock, rowlock), Sklep S
  where K.KontrId = :KontrId
  and K.KontrId *= S.SklepId;

-- ==== Import towarów ====

select T.*, P.OpakId, P.IleWOpak, P.Tandem
  from Towar T, Powiazanie P
  where T.TowId *= P.TowId
  and T.TowId in (:Id0, :Id1, /* ... */ :Id99);

select T.*, P.OpakId, P.IleWOpak, P.Tandem
  from Towar T with (updlock, rowlock), Powiazanie P
  where T.TowId *= P.TowId
  and T.TowId in (:Id0, :Id1, /* ... */ :Id99);

select T.*, P.OpakId, P.IleWOpak, P.Tandem
  from Towar T, Powiazanie P
  where T.TowId *= P.TowId
  and T.TowId = :TowId;

select T.*, P.OpakId, P.IleWOpak, P.Tandem
  from Towar T with (updlock, rowlock), Powiazanie P
  where T.TowId *= P.TowId
  and T.TowId = :TowId;

-- ==== Formularze ====

select M.MagId, M.Nazwa, I.StanMag, I.BlokadaMag, I.CenaMag, I.StanMin, I.StanMax
  from Magazyn M, Istw I
  where M.MagId *= I.MagId
  and I.TowId = :TowId
  order by M.Nazwa, M.MagId;
