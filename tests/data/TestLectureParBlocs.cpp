// Records read here and there, a block at a time: each as the file itself reads it.

#include <memory>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/LectureParBlocs.h"
#include "doublures/Pannes.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A block holds 504 families of 130 bytes: 65520 bytes.
class LectureDeBlocs : public testing::Test {
 protected:
  static constexpr std::int64_t parBloc = 504;

  /// A file of so many whole records, with `reste` bytes of one more.
  void Pose(std::size_t nombre, std::size_t reste = 0) {
    std::string octets;
    for (std::size_t numero = 1; numero <= nombre; ++numero) {
      RecFamille famille;
      famille.actif = vivant;
      famille.nomFamille = "n" + std::to_string(numero);
      octets += Octets(famille);
    }
    dossier.Ecrit("GLR1.DAT", octets + std::string(reste, 'x'));
    place = disque.Ouvre("GLR1.DAT");
    disque.OublieJournal();
  }

  std::string Lu(std::int64_t numero) {
    RecFamille famille;
    blocs.Lit(numero, famille);
    return Octets(famille);
  }

  /// As the file itself reads it.
  std::string Attendu(std::int64_t numero) {
    RecFamille famille;
    fichier.Lit(numero, famille);
    return Octets(famille);
  }

  DossierEssai dossier;
  DisqueEssai disque{dossier.chemin()};
  std::unique_ptr<Fichier> place;
  FichierEnregistrements<RecFamille> fichier{place};
  LectureParBlocs<RecFamille> blocs{fichier};
};

TEST_F(LectureDeBlocs, LisentChaqueFicheCommeLeFichierLuiMeme) {
  Pose(3 * parBloc + 7, 65);
  for (std::int64_t numero = 1; numero <= 5 * parBloc; ++numero) {
    ASSERT_EQ(Lu(numero), Attendu(numero)) << numero;
  }
}

TEST_F(LectureDeBlocs, LisentAReboursEtDUnBlocALAutre) {
  Pose(3 * parBloc);
  for (std::int64_t numero = 3 * parBloc; numero >= 1; --numero) {
    ASSERT_EQ(Lu(numero), Attendu(numero)) << numero;
  }
  for (const std::int64_t numero : {parBloc, parBloc + 1, 2 * parBloc, 2 * parBloc + 1, parBloc}) {
    EXPECT_EQ(Lu(numero), Attendu(numero)) << numero;
  }
}

TEST_F(LectureDeBlocs, NeLisentChaqueBlocQuUneFois) {
  Pose(2 * parBloc);
  for (const std::int64_t numero : {2, 1008, 504, 505, 1, 2}) {
    Lu(numero);
  }
  EXPECT_THAT(disque.journal(), ElementsAre("lit GLR1.DAT 0+65520", "lit GLR1.DAT 65520+65520"));
}

TEST_F(LectureDeBlocs, LisentDesZerosAuDelaDeLaFin) {
  Pose(3);
  for (const std::int64_t numero : {4L, 504L, 505L, 2'147'483'647L}) {
    EXPECT_EQ(Lu(numero), std::string(130, '\0')) << numero;
  }
}

TEST_F(LectureDeBlocs, RefusentUnNumeroSousUn) {
  Pose(3);
  for (const std::int64_t numero :
       std::initializer_list<std::int64_t>{0, -1, -504, -2'147'483'648}) {
    EXPECT_EQ(PanneDe([&] { Lu(numero); }), Panne::numeroEnregistrement) << numero;
  }
  EXPECT_THAT(disque.journal(), IsEmpty());
}

TEST_F(LectureDeBlocs, OublientToutAuDelaDe256BlocsEtRelisentJuste) {
  Pose(3);
  constexpr std::int64_t gardes = 256;
  for (std::int64_t bloc = 0; bloc < gardes; ++bloc) {
    Lu(bloc * parBloc + 2);
  }
  EXPECT_EQ(disque.journal().size(), 256U);
  Lu(2);
  EXPECT_EQ(disque.journal().size(), 256U);
  EXPECT_EQ(Lu(gardes * parBloc + 2), std::string(130, '\0'));
  disque.OublieJournal();
  const std::string relu = Lu(2);
  EXPECT_THAT(disque.journal(), ElementsAre("lit GLR1.DAT 0+65520"));
  EXPECT_EQ(relu, Attendu(2));
}

TEST_F(LectureDeBlocs, NeGardentRienDUneLectureQuiEchoue) {
  Pose(3);
  disque.EchoueSur("lit", Panne::entreeSortie);
  EXPECT_EQ(PanneDe([&] { Lu(2); }), Panne::entreeSortie);
  disque.Guerit();
  EXPECT_EQ(Lu(2), Attendu(2));
}

TEST_F(LectureDeBlocs, EchouentSurUnFichierFerme) {
  EXPECT_EQ(PanneDe([&] { Lu(2); }), Panne::fichierFerme);
}

}  // namespace
}  // namespace gastrelle::essai
