// The libraries that are opened at their first use.

#include <cstdlib>
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "plateforme/BibliothequePosix.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;

TEST(BibliothequeOuverte, VientDUnDossierDuSysteme) {
  BibliothequeSysteme canberra("libcanberra.so.0");
  int (*cree)(void**) = nullptr;
  canberra.Prend(cree, "ca_context_create");
  ASSERT_TRUE(canberra.presente());
  Dl_info origine{};
  ASSERT_NE(::dladdr(reinterpret_cast<const void*>(cree), &origine), 0);
  EXPECT_THAT(origine.dli_fname, testing::MatchesRegex("(/usr)?/lib.*/libcanberra.so.0"));
}

TEST(BibliothequeOuverte, NeVientPasDUnDossierQueLEnvironnementNomme) {
  const DossierEssai piege;
  fs::copy_file(BIBLIOTHEQUE_PIEGE, piege.chemin() / "libcanberra.so.0");
  const std::string commande =
      "cd '" + piege.chemin().string() + "' && LD_LIBRARY_PATH=. '" +
      fs::read_symlink("/proc/self/exe").string() +
      "' --gtest_filter=BibliothequeOuverte.VientDUnDossierDuSysteme >/dev/null";
  EXPECT_EQ(std::system(commande.c_str()), 0);
  EXPECT_FALSE(piege.A("sautee"));
}

TEST(BibliothequeOuverte, ManqueSansDommage) {
  BibliothequeSysteme absente("libnullepart.so.0");
  int (*fonction)() = nullptr;
  absente.Prend(fonction, "rien");
  EXPECT_FALSE(absente.presente());
  EXPECT_EQ(fonction, nullptr);
}

TEST(BibliothequeOuverte, ManqueQuandUneFonctionLuiManque) {
  BibliothequeSysteme canberra("libcanberra.so.0");
  int (*fonction)() = nullptr;
  canberra.Prend(fonction, "ca_context_nulle_part");
  EXPECT_FALSE(canberra.presente());
}

}  // namespace
}  // namespace gastrelle::essai
