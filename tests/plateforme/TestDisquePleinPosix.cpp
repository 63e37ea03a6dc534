// The disk of the machine when it has no room left, or as good as none.

#include <csignal>
#include <set>
#include <string>

#include "doublures/Limites.h"
#include "doublures/Pannes.h"
#include "plateforme/DisqueReel.h"

namespace gastrelle::essai {
namespace {

/// No file grows beyond `octets` while the object lives.
class DisqueEtroit {
 public:
  explicit DisqueEtroit(rlim_t octets) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
    PoseLimite(RLIMIT_FSIZE, octets, avant_.rlim_max);
  }
  DisqueEtroit(const DisqueEtroit&) = delete;
  DisqueEtroit& operator=(const DisqueEtroit&) = delete;
  ~DisqueEtroit() {
    PoseLimite(RLIMIT_FSIZE, avant_.rlim_cur, avant_.rlim_max);
    std::signal(SIGXFSZ, signal_);
  }

 private:
  const rlimit avant_ = LimiteEnVigueur(RLIMIT_FSIZE);
  void (*signal_)(int);
};

TEST_F(DisqueReel, NeLaissePasDeCopiePartielleSurUnDisquePlein) {
  dossier.Ecrit("X", std::string(10'000, 'x'));
  const DisqueEtroit etroit(4096);
  EXPECT_EQ(PanneDe([&] { disque.Copie("X", "Y"); }), Panne::disquePlein);
  EXPECT_FALSE(dossier.A("Y"));
}

TEST_F(DisqueReel, GardeLAncienneCibleQuandLaCopieNAboutitPas) {
  dossier.Ecrit("X", std::string(10'000, 'x'));
  dossier.Ecrit("Y", "des années de recettes");
  const DisqueEtroit etroit(4096);
  EXPECT_EQ(PanneDe([&] { disque.Copie("X", "Y"); }), Panne::disquePlein);
  EXPECT_EQ(dossier.Lit("Y"), "des années de recettes");
  EXPECT_EQ(Noms(), (std::set<std::string>{"X", "Y"}));
}

TEST_F(DisqueReel, DitLeDisquePleinQuandUneEcritureNePassePas) {
  const auto fichier = disque.Ouvre("X");
  const DisqueEtroit etroit(4096);
  EXPECT_EQ(PanneDe([&] { fichier->Ecrit(4096, "x"); }), Panne::disquePlein);
}

}  // namespace
}  // namespace gastrelle::essai
