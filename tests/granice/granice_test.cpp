#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <regex>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using Nazwy = std::set<std::string>;

// Rooms by folder: the name their headers are included under, and the rooms they may include beside
// themselves.
struct Pokoj {
  std::string nazwa;
  Nazwy wolno;
};

const std::map<std::string, Pokoj> kPokoje = {
    {"platform", {"platform", {}}},
    {"database", {"database", {"platform"}}},
    {"model", {"model", {"platform"}}},
    {"exchange", {"exchange", {"platform"}}},
    {"run", {"run", {"exchange", "model", "platform"}}},
    {"goods", {"goods", {"run", "model", "exchange", "platform"}}},
    {"contractors", {"contractors", {"run", "model", "exchange", "platform"}}},
    {"shell/ustawienia", {"ustawienia", {"goods", "contractors", "run", "model", "exchange", "platform"}}},
    {"shell", {"shell", {"ustawienia", "goods", "contractors", "run", "model", "exchange", "platform"}}},
    {"app",
     {"app",
      {"shell", "ustawienia", "database", "goods", "contractors", "run", "model", "exchange", "platform"}}},
};

// Folders that hold programs beside the product.
const Nazwy kInne = {"tests", "bench"};

// The room of the longest folder that the file lies in.
const Pokoj* PokojPliku(const std::string& sciezka) {
  const Pokoj* pokoj = nullptr;
  for (const auto& [folder, opis] : kPokoje)
    if (sciezka.starts_with(folder + "/")) pokoj = &opis;  // ordered: the longer folder comes later
  return pokoj;
}

// Why a line of a file of the room is not allowed.
std::optional<std::string> Wykroczenie(const Pokoj& pokoj, const std::string& linia) {
  static const std::regex kInclude(R"re(^\s*#\s*include\s*(["<])([^">]+)[">].*)re");
  std::smatch czesci;
  if (!std::regex_match(linia, czesci, kInclude)) return std::nullopt;
  const std::string cel = czesci[2];
  if (czesci[1] == "<") {
    if (cel.starts_with("soci/") && pokoj.nazwa != "platform") return "soci outside platform: " + cel;
    return std::nullopt;
  }
  const std::string skad = cel.substr(0, cel.find('/'));
  if (cel.find('/') == std::string::npos) return "no room named: " + cel;
  if (skad == pokoj.nazwa || pokoj.wolno.contains(skad)) return std::nullopt;
  return pokoj.nazwa + " may not include " + cel;
}

bool JestZrodlem(const fs::path& plik) {
  return plik.extension() == ".h" || plik.extension() == ".cpp";
}

TEST(Granice, KazdyIncludeMiesciSieWTabeli) {
  const fs::path zrodla = ZORVIK_ZRODLA;
  std::vector<std::string> wykroczenia;
  Nazwy odwiedzone;
  for (const auto& folder : fs::directory_iterator(zrodla)) {
    const std::string nazwa = folder.path().filename();
    if (!folder.is_directory() || nazwa.starts_with('.') || nazwa.starts_with("build") ||
        kInne.contains(nazwa))
      continue;
    for (const auto& plik : fs::recursive_directory_iterator(folder)) {
      if (!plik.is_regular_file() || !JestZrodlem(plik.path())) continue;
      const std::string sciezka = fs::relative(plik.path(), zrodla).generic_string();
      const Pokoj* pokoj = PokojPliku(sciezka);
      if (!pokoj) {
        wykroczenia.push_back(sciezka + ": no room has this folder");
        continue;
      }
      odwiedzone.insert(pokoj->nazwa);
      std::ifstream strumien(plik.path());
      for (std::string linia; std::getline(strumien, linia);)
        if (const auto wykroczenie = Wykroczenie(*pokoj, linia))
          wykroczenia.push_back(sciezka + ": " + *wykroczenie);
    }
  }
  EXPECT_THAT(wykroczenia, testing::IsEmpty());
  for (const char* pokoj : {"platform", "model", "exchange", "run", "goods", "ustawienia", "app"})
    EXPECT_TRUE(odwiedzone.contains(pokoj)) << pokoj << " has no sources: is the folder right?";
}

TEST(Granice, WykroczeniaSaRozpoznawane) {
  const auto odmowa = [](const char* plik, const char* linia) {
    return Wykroczenie(*PokojPliku(plik), linia).has_value();
  };
  EXPECT_TRUE(odmowa("exchange/a.cpp", "#include \"model/towar.h\""));
  EXPECT_TRUE(odmowa("goods/a.h", "  # include \"contractors/b.h\""));
  EXPECT_TRUE(odmowa("shell/ustawienia/a.h", "#include \"shell/okno.h\""));
  EXPECT_TRUE(odmowa("run/a.cpp", "#include <soci/soci.h>"));
  EXPECT_TRUE(odmowa("model/a.cpp", "#include \"towar.h\""));
  EXPECT_FALSE(odmowa("shell/okno.cpp", "#include \"ustawienia/ustawienia.h\""));
  EXPECT_FALSE(odmowa("platform/baza/a.cpp", "#include <soci/soci.h>"));
  EXPECT_FALSE(odmowa("goods/a.cpp", "// #include \"contractors/b.h\""));
}

}  // namespace
