// What the system allows the process. Each test runs in a process of its own making.

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "doublures/Enfant.h"
#include "doublures/Limites.h"
#include "doublures/Pannes.h"
#include "plateforme/Contraintes.h"
#include "plateforme/Disque.h"

namespace gastrelle::essai {
namespace {

TEST(Contraintes, UnFichierTropGrandEchoueCommeSurUnDisquePlein) {
  const DossierEssai dossier;
  const auto ecrit = [&] {
    PoseLimite(RLIMIT_FSIZE, 10, 10);
    Disque disque(dossier.chemin());
    const auto fichier = disque.Ouvre("X");
    return PanneDe([&] { fichier->Ecrit(10, "x"); }) == Panne::disquePlein ? 7 : 1;
  };
  EXPECT_EQ(Enfant(ecrit), -SIGXFSZ);
  EXPECT_EQ(Enfant([&] {
              ChangeSignalEnErreur();
              return ecrit();
            }),
            7);
}

TEST(Contraintes, LesProgrammesOuvertsGardentLeurSignal) {
  EXPECT_EQ(Enfant([] {
              ChangeSignalEnErreur();
              ::execl("/bin/sh", "sh", "-c", "kill -XFSZ $$; exit 3", nullptr);
              return 1;
            }),
            -SIGXFSZ);
}

TEST(Contraintes, LesFichiersPermisSeComptentJusquAAssez) {
  EXPECT_EQ(Enfant([] {
              PoseLimite(RLIMIT_NOFILE, 20, 20);
              const int libres = FichiersPermis(64);
              int ouverts = 0;
              while (::open("/dev/null", O_RDONLY) >= 0) {
                ++ouverts;
              }
              return ouverts > 0 && ouverts == libres && FichiersPermis(64) == 0 ? 7 : 1;
            }),
            7);
  EXPECT_EQ(Enfant([] {
              PoseLimite(RLIMIT_NOFILE, 200, 200);
              return FichiersPermis(64);
            }),
            64);
}

TEST(Contraintes, UneLimiteSoupleSeReleve) {
  EXPECT_EQ(Enfant([] {
              PoseLimite(RLIMIT_NOFILE, 20, 100);
              const int libres = FichiersPermis(64);
              return libres == 64 && LimiteEnVigueur(RLIMIT_NOFILE).rlim_cur == 100 ? 7 : 1;
            }),
            7);
}

TEST(Contraintes, UneLimiteConfortableResteCeQuElleEst) {
  EXPECT_EQ(Enfant([] {
              PoseLimite(RLIMIT_NOFILE, 300, 400);
              FichiersPermis(64);
              return LimiteEnVigueur(RLIMIT_NOFILE).rlim_cur == 300 ? 7 : 1;
            }),
            7);
}

TEST(Contraintes, LesEntreesEtSortiesFermeesSontPourvues) {
  EXPECT_EQ(Enfant([] {
              for (const int numero : {0, 1, 2}) {
                ::close(numero);
              }
              GarnitEntreesSorties();
              const int suivant = ::open("/dev/null", O_RDONLY);
              return suivant > 2 ? 7 : suivant;
            }),
            7);
}

TEST(Contraintes, LesEntreesEtSortiesOuvertesRestentCeQuEllesSont) {
  EXPECT_EQ(Enfant([] {
              struct stat avant {};
              ::fstat(1, &avant);
              GarnitEntreesSorties();
              struct stat apres {};
              ::fstat(1, &apres);
              return avant.st_ino == apres.st_ino ? 7 : 1;
            }),
            7);
}

}  // namespace
}  // namespace gastrelle::essai
