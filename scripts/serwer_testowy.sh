# Jednorazowy serwer PostgreSQL dla testów i pomiarów; wczytywane poleceniem source po wspolne.sh.
# uruchom_serwer_testowy eksportuje ZORVIK_TEST_ODBC: parametry połączenia z jego bazą "postgres".
# Serwer i jego folder znikają razem ze skryptem, także po błędzie.

# PostgreSQL nie działa na koncie root.
jako_serwer() {
  if [ "$(id -u)" -eq 0 ]; then (cd / && runuser -u postgres -- "$@"); else "$@"; fi
}

zatrzymaj_serwer_testowy() {
  [ -n "${SERWER_FOLDER:-}" ] || return 0
  jako_serwer "$SERWER_PROGRAMY/pg_ctl" -D "$SERWER_FOLDER/dane" -m immediate -w stop > /dev/null 2>&1 || true
  rm -rf "$SERWER_FOLDER"
  SERWER_FOLDER=
}

# Jak administrator: zrywa połączenia i uruchamia serwer znowu, w tym samym miejscu.
wznow_serwer_testowy() {
  jako_serwer "$SERWER_PROGRAMY/pg_ctl" -D "$SERWER_FOLDER/dane" -l "$SERWER_FOLDER/dane/dziennik" -m fast -w \
    restart > /dev/null 2>&1
}

# uruchom_serwer_testowy [ustawienia serwera nazwa=wartość...]
uruchom_serwer_testowy() {
  SERWER_PROGRAMY=$(find /usr/lib/postgresql -maxdepth 2 -name bin | sort -V | tail -1)
  SERWER_FOLDER=$(mktemp -d "${TMPDIR:-/tmp}/zorvik-serwer.XXXXXX")
  trap zatrzymaj_serwer_testowy EXIT
  trap 'exit 130' INT TERM
  local haslo opcje=() ustawienie port proba
  haslo=$(od -An -N12 -tx1 /dev/urandom | tr -d ' \n')
  printf '%s\n' "$haslo" > "$SERWER_FOLDER/haslo"
  [ "$(id -u)" -eq 0 ] && chown -R postgres "$SERWER_FOLDER"
  # Polski porządek słów w całym serwerze: porządek, którego wymaga program, musi wynikać ze schematu.
  jako_serwer "$SERWER_PROGRAMY/initdb" -D "$SERWER_FOLDER/dane" -U zorvik_test --pwfile="$SERWER_FOLDER/haslo" \
    --auth=scram-sha-256 --encoding=UTF8 --locale=C.UTF-8 --locale-provider=icu --icu-locale=pl-PL \
    --no-sync > "$SERWER_FOLDER/dziennik" 2>&1 || { cat "$SERWER_FOLDER/dziennik"; return 1; }
  for ustawienie in fsync=off full_page_writes=off max_connections=50 "$@"; do opcje+=(-c "$ustawienie"); done
  for proba in 1 2 3 4 5; do
    port=$((20000 + RANDOM % 30000))
    if jako_serwer "$SERWER_PROGRAMY/pg_ctl" -D "$SERWER_FOLDER/dane" -l "$SERWER_FOLDER/dane/dziennik" -w -o \
      "-c listen_addresses=127.0.0.1 -p $port -k $SERWER_FOLDER/dane ${opcje[*]}" start > /dev/null 2>&1; then
      export ZORVIK_TEST_ODBC="Driver=PostgreSQL Unicode;Server=127.0.0.1;Port=$port;Database=postgres;UID=zorvik_test;PWD=$haslo"
      return 0
    fi
  done
  cat "$SERWER_FOLDER/dane/dziennik"
  echo "Serwer testowy nie ruszył." >&2
  return 1
}
