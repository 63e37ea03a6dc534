// One running program for each folder, whatever becomes of the others.

#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
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

}  // namespace
}  // namespace gastrelle::essai
