// The failures that stand for the errors of the system.

#include <initializer_list>
#include <windows.h>

#include <gtest/gtest.h>

#include "plateforme/ErreurExecution.h"

namespace gastrelle::essai {
namespace {

TEST(CodesSysteme, TraduitLesErreursDuSysteme) {
  EXPECT_EQ(PanneDuSysteme(ERROR_FILE_NOT_FOUND), Panne::fichierIntrouvable);
  EXPECT_EQ(PanneDuSysteme(ERROR_PATH_NOT_FOUND), Panne::fichierIntrouvable);
  EXPECT_EQ(PanneDuSysteme(ERROR_DIRECTORY), Panne::cheminIntrouvable);
  EXPECT_EQ(PanneDuSysteme(ERROR_INVALID_PARAMETER), Panne::appelIncorrect);
  EXPECT_EQ(PanneDuSysteme(ERROR_NOT_ENOUGH_MEMORY), Panne::memoireInsuffisante);
  for (const int panne : std::initializer_list<int>{ERROR_CRC, ERROR_IO_DEVICE, ERROR_READ_FAULT,
                                                    ERROR_WRITE_FAULT}) {
    EXPECT_EQ(PanneDuSysteme(panne), Panne::entreeSortie) << panne;
  }
  for (const int plein : std::initializer_list<int>{ERROR_DISK_FULL, ERROR_HANDLE_DISK_FULL,
                                                    ERROR_FILE_TOO_LARGE, 1295}) {
    EXPECT_EQ(PanneDuSysteme(plein), Panne::disquePlein) << plein;
  }
  for (const int refus : std::initializer_list<int>{ERROR_ACCESS_DENIED, ERROR_WRITE_PROTECT,
                                                    ERROR_SHARING_VIOLATION}) {
    EXPECT_EQ(PanneDuSysteme(refus), Panne::permissionRefusee) << refus;
  }
}

TEST(CodesSysteme, PrendTouteAutreErreurDuSystemePourUnAccesManque) {
  for (const int autre :
       std::initializer_list<int>{ERROR_ALREADY_EXISTS, ERROR_DIR_NOT_EMPTY,
                                  ERROR_TOO_MANY_OPEN_FILES, ERROR_FILENAME_EXCED_RANGE, 0, -1}) {
    EXPECT_EQ(PanneDuSysteme(autre), Panne::accesFichier) << autre;
  }
}

}  // namespace
}  // namespace gastrelle::essai
