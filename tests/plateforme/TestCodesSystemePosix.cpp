// The failures that stand for the errors of the system.

#include <cerrno>

#include <gtest/gtest.h>

#include "plateforme/ErreurExecution.h"

namespace gastrelle::essai {
namespace {

TEST(CodesSysteme, TraduitLesErreursDuSysteme) {
  EXPECT_EQ(PanneDuSysteme(ENOENT), Panne::fichierIntrouvable);
  EXPECT_EQ(PanneDuSysteme(EIO), Panne::entreeSortie);
  EXPECT_EQ(PanneDuSysteme(ENOMEM), Panne::memoireInsuffisante);
  EXPECT_EQ(PanneDuSysteme(ENOTDIR), Panne::cheminIntrouvable);
  EXPECT_EQ(PanneDuSysteme(EINVAL), Panne::appelIncorrect);
  for (const int plein : {ENOSPC, EDQUOT, EFBIG}) {
    EXPECT_EQ(PanneDuSysteme(plein), Panne::disquePlein) << plein;
  }
  for (const int refus : {EACCES, EPERM, EROFS}) {
    EXPECT_EQ(PanneDuSysteme(refus), Panne::permissionRefusee) << refus;
  }
}

TEST(CodesSysteme, PrendTouteAutreErreurDuSystemePourUnAccesManque) {
  for (const int autre : {EISDIR, EEXIST, ENOTEMPTY, EMFILE, ENAMETOOLONG, 0, -1}) {
    EXPECT_EQ(PanneDuSysteme(autre), Panne::accesFichier) << autre;
  }
}

}  // namespace
}  // namespace gastrelle::essai
