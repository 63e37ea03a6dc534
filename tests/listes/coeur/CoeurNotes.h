// The notes of a library whose start is over.
#pragma once

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "listes/Notes.h"

namespace gastrelle::essai {

class Notes : public testing::Test {
 protected:
  void SetUp() override { b.Demarre(); }

  /// What is read of a file that holds these bytes.
  std::string Lues(std::string_view octets) {
    b.dossier.Ecrit("MesNotes.txt", octets);
    return LitNotes(*b.module);
  }
  /// The file once a text was written.
  std::string Ecrites(std::string_view texte) {
    EcritNotes(*b.module, texte);
    return b.dossier.Lit("MesNotes.txt");
  }

  Bibliotheque b;
};

}  // namespace gastrelle::essai
