#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <regex>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

// By folder: the rooms whose headers a file there may include, its own first.
const std::map<std::string, std::string> kPokoje = {
    {"platform", "platform"},
    {"database", "database platform"},
    {"model", "model platform"},
    {"exchange", "exchange platform"},
    {"run", "run exchange model platform"},
    {"goods", "goods run model exchange platform"},
    {"contractors", "contractors run model exchange platform"},
    {"shell/robotnik", "robotnik"},
    {"shell/ustawienia", "ustawienia goods contractors run model exchange platform"},
    {"shell", "shell robotnik ustawienia goods contractors run model exchange platform"},
    {"app", "app shell ustawienia database goods contractors run model exchange platform"},
};

// Folders that hold programs beside the product.
const std::set<std::string> kInne = {"tests", "bench", "docs"};

// What is wrong with a line of a file; empty when nothing is.
std::string Wykroczenie(const std::string& sciezka, const std::string& linia) {
  static const std::regex kInclude(R"re(^\s*#\s*include\s*(["<])([^">]+)[">].*)re");
  std::smatch czesci;
  if (!std::regex_match(linia, czesci, kInclude)) return {};
  const std::string* wolno = nullptr;
  for (const auto& [folder, pokoje] : kPokoje)
    if (sciezka.starts_with(folder + "/")) wolno = &pokoje;  // ordered: the longer folder comes later
  const std::string cel = czesci[2];
  const std::string skad = cel.substr(0, cel.find('/'));
  if (!wolno) return sciezka + ": no room has this folder";
  if (czesci[1] == "<") return skad != "soci" || *wolno == "platform" ? "" : sciezka + ": " + cel;
  if (cel == fs::path(sciezka).stem().string() + ".moc") return {};  // generated of the file itself
  const bool zPokojem = skad != cel;
  const bool dozwolony = (" " + *wolno + " ").find(" " + skad + " ") != std::string::npos;
  return zPokojem && dozwolony ? "" : sciezka + ": " + cel;
}

TEST(Granice, KazdyIncludeMiesciSieWTabeli) {
  const fs::path zrodla = ZORVIK_ZRODLA;
  std::vector<std::string> wykroczenia;
  std::set<std::string> odwiedzone;
  for (const auto& folder : fs::directory_iterator(zrodla)) {
    const std::string nazwa = folder.path().filename();
    if (!folder.is_directory() || nazwa[0] == '.' || nazwa.starts_with("build") || kInne.contains(nazwa))
      continue;
    for (const auto& plik : fs::recursive_directory_iterator(folder)) {
      const std::string rodzaj = plik.path().extension();
      if (rodzaj != ".h" && rodzaj != ".cpp") continue;
      odwiedzone.insert(nazwa);
      const std::string sciezka = fs::relative(plik.path(), zrodla).generic_string();
      std::ifstream strumien(plik.path());
      for (std::string linia; std::getline(strumien, linia);)
        if (const std::string powod = Wykroczenie(sciezka, linia); !powod.empty())
          wykroczenia.push_back(powod);
    }
  }
  EXPECT_THAT(wykroczenia, testing::IsEmpty());
  EXPECT_THAT(odwiedzone,
              testing::IsSupersetOf({"app", "exchange", "goods", "model", "platform", "run", "shell"}));
}

TEST(Granice, WykroczeniaSaRozpoznawane) {
  EXPECT_NE(Wykroczenie("exchange/a.cpp", "#include \"model/towar.h\""), "");
  EXPECT_NE(Wykroczenie("goods/a.h", "  # include \"contractors/b.h\""), "");
  EXPECT_NE(Wykroczenie("shell/ustawienia/a.h", "#include \"shell/okno.h\""), "");
  EXPECT_NE(Wykroczenie("run/a.cpp", "#include <soci/soci.h>"), "");
  EXPECT_NE(Wykroczenie("model/a.cpp", "#include \"towar.h\""), "");
  EXPECT_EQ(Wykroczenie("shell/okno.cpp", "#include \"ustawienia/ustawienia.h\""), "");
  EXPECT_EQ(Wykroczenie("platform/baza/a.cpp", "#include <soci/soci.h>"), "");
  EXPECT_EQ(Wykroczenie("goods/a.cpp", "// #include \"contractors/b.h\""), "");
}

TEST(Granice, ProgramWierszaPolecenObchodziSieBezOkien) {
  const std::unique_ptr<FILE, int (*)(FILE*)> potok(popen("readelf -d '" ZORVIK_CLI "'", "r"), pclose);
  ASSERT_NE(potok, nullptr);
  std::string biblioteki;
  for (char linia[1024]; std::fgets(linia, sizeof linia, potok.get()) != nullptr;) biblioteki += linia;
  EXPECT_THAT(biblioteki, testing::HasSubstr("libQt6Core.so"));
  EXPECT_THAT(biblioteki, testing::Not(testing::ContainsRegex("libQt6(Gui|Widgets)")));
}

}  // namespace
