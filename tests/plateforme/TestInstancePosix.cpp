// One running program for each folder, whatever becomes of the others.

#include <atomic>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "plateforme/Instance.h"

namespace gastrelle::essai {
namespace {

TEST(Instance, FinitAvecLeProcessusMemeTueNet) {
  const DossierEssai dossier;
  const pid_t enfant = ::fork();
  if (enfant == 0) {
    ::_exit(Instance::Prend(dossier.chemin()).release() == nullptr ? 1 : 0);
  }
  int statut = -1;
  ::waitpid(enfant, &statut, 0);
  EXPECT_EQ(statut, 0);
  EXPECT_NE(Instance::Prend(dossier.chemin()), nullptr);
}

/// The folder's own lock, as another program would hold it.
TEST(Instance, RespecteLeVerrouDUnAutreSurLeDossier) {
  const DossierEssai dossier;
  const int numero = ::open(dossier.chemin().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  ASSERT_EQ(::flock(numero, LOCK_EX | LOCK_NB), 0);
  EXPECT_EQ(Instance::Prend(dossier.chemin()), nullptr);
  ::close(numero);
  EXPECT_NE(Instance::Prend(dossier.chemin()), nullptr);
}

/// Each makes the folder, and deletes it once it has its lock: whoever has opened it before then
/// locks what is gone, and must not take that for the folder which somebody has made since.
TEST(Instance, NeVautRienSurUnDossierRefaitEntreTemps) {
  constexpr int tours = 4000;
  const DossierEssai place;
  const std::filesystem::path dispute = place.chemin() / "dispute";
  std::atomic<int> obtenus = 0;
  std::atomic<int> trompes = 0;
  const auto dispose = [&] {
    for (int tour = 0; tour < tours; ++tour) {
      ::mkdir(dispute.c_str(), S_IRWXU);
      if (const auto verrou = Instance::Prend(dispute); verrou != nullptr) {
        ++obtenus;
        trompes += ::mkdir((dispute / "mien").c_str(), S_IRWXU) == 0 ? 0 : 1;
        ::rmdir((dispute / "mien").c_str());
        ::rmdir(dispute.c_str());
      }
    }
  };
  std::thread autre(dispose);
  dispose();
  autre.join();
  EXPECT_GT(obtenus, 0);
  EXPECT_EQ(trompes, 0);
}

}  // namespace
}  // namespace gastrelle::essai
