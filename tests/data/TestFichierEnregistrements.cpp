// Record files: numbers, the end of the file, counts, scans.

#include <limits>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/FichierEnregistrements.h"
#include "doublures/Pannes.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;

/// A file of families, header first.
class FichierFamilles : public testing::Test {
 protected:
  void Pose(std::int16_t compte, const std::vector<std::int16_t>& actifs) {
    RecFamille famille;
    famille.actif = compte;
    famille.nomFamille = "GASTRELF.DAT";
    std::string octets = Octets(famille);
    for (const std::int16_t actif : actifs) {
      famille.actif = actif;
      famille.nomFamille = "n" + std::to_string(octets.size() / 130 + 1);
      octets += Octets(famille);
    }
    dossier.Ecrit("GLR1.DAT", octets);
    place = disque.Ouvre("GLR1.DAT");
    fichier.LitEntete();
    disque.OublieJournal();
  }

  /// Numbers of the live records, as the scan hands them out.
  std::vector<std::int32_t> Parcourt() {
    std::vector<std::int32_t> numeros;
    vus = fichier.ParcourtVivants(fichier.courant(),
                                  [&](std::int32_t numero) { numeros.push_back(numero); });
    return numeros;
  }

  /// Numbers of the records up to `dernier`, as the walk hands them out.
  std::vector<std::int32_t> ParcourtJusqua(std::int64_t dernier) {
    std::vector<std::int32_t> numeros;
    fichier.ParcourtEntre(2, dernier, fichier.courant(), [&](std::int32_t numero) {
      numeros.push_back(numero);
      return true;
    });
    return numeros;
  }

  RecFamille SurDisque(std::size_t numero) const {
    return Enregistrement<RecFamille>(dossier, "GLR1.DAT", numero);
  }

  DossierEssai dossier;
  DisqueEssai disque{dossier.chemin()};
  std::unique_ptr<Fichier> place;
  FichierEnregistrements<RecFamille> fichier{place};
  std::int16_t vus = -1;
};

std::string Nom128(std::string_view nom) {
  return std::string(nom) + std::string(128 - nom.size(), ' ');
}

TEST_F(FichierFamilles, CommencentLEnregistrementNALOctetNMoinsUnFoisSaLongueur) {
  Pose(2, {vivant, vivant});
  fichier.LitCourant(3);
  EXPECT_EQ(fichier.courant().nomFamille.brut(), Nom128("n3"));
  fichier.courant().nomFamille = "Soupes";
  fichier.EcritCourant(2);
  EXPECT_THAT(disque.journal(), ElementsAre("lit GLR1.DAT 260+130", "écrit GLR1.DAT 130+130"));
  EXPECT_EQ(SurDisque(2).nomFamille.brut(), Nom128("Soupes"));
  EXPECT_EQ(SurDisque(3).nomFamille.brut(), Nom128("n3"));
}

TEST_F(FichierFamilles, GardentEnTeteEtEnregistrementDeTravailApart) {
  Pose(1, {vivant});
  fichier.LitCourant(2);
  EXPECT_EQ(fichier[0].nomFamille.brut(), Nom128("GASTRELF.DAT"));
  EXPECT_EQ(fichier[1].nomFamille.brut(), Nom128("n2"));
  EXPECT_EQ(fichier.nbActifs(), 1);
}

TEST_F(FichierFamilles, LisentDesZerosAuDelaDeLaFin) {
  Pose(1, {vivant});
  fichier.LitCourant(3);
  EXPECT_EQ(Octets(fichier.courant()), std::string(130, '\0'));
  fichier.LitCourant(1'000'000);
  EXPECT_EQ(Octets(fichier.courant()), std::string(130, '\0'));
}

TEST_F(FichierFamilles, LisentCeQuIlResteDUnEnregistrementTronque) {
  Pose(1, {vivant});
  dossier.Ecrit("GLR1.DAT", dossier.Lit("GLR1.DAT") + "\xFF\xFF" + "abc");
  fichier.LitCourant(3);
  EXPECT_EQ(Octets(fichier.courant()), "\xFF\xFF" + ("abc" + std::string(125, '\0')));
}

TEST_F(FichierFamilles, ComptentLesEnregistrementsEntiers) {
  Pose(1, {vivant});
  EXPECT_EQ(fichier.Nombre(), 2);
  dossier.Ecrit("GLR1.DAT", dossier.Lit("GLR1.DAT") + std::string(129, 'x'));
  EXPECT_EQ(fichier.Nombre(), 2);
  EXPECT_EQ(fichier.ProchainNumero(), 3);
}

TEST_F(FichierFamilles, RefusentUnNumeroSousUn) {
  Pose(1, {vivant});
  for (const std::int64_t numero : {0, -1}) {
    EXPECT_EQ(PanneDe([&] { fichier.LitCourant(numero); }), Panne::numeroEnregistrement);
    EXPECT_EQ(PanneDe([&] { fichier.EcritCourant(numero); }), Panne::numeroEnregistrement);
  }
  EXPECT_THAT(disque.journal(), testing::IsEmpty());
}

TEST_F(FichierFamilles, EchouentFermes) {
  EXPECT_EQ(PanneDe([&] { fichier.LitCourant(1); }), Panne::fichierFerme);
  EXPECT_EQ(PanneDe([&] { fichier.EcritCourant(1); }), Panne::fichierFerme);
  EXPECT_EQ(PanneDe([&] { (void)fichier.Nombre(); }), Panne::fichierFerme);
  EXPECT_EQ(PanneDe([&] { Parcourt(); }), Panne::fichierFerme);
}

TEST_F(FichierFamilles, GrandissentDeTroisEtComptentDeuxApresTroisAjoutsEtUneSuppression) {
  Pose(1, {vivant});
  for (const char* nom : {"A", "B", "C"}) {
    fichier.courant().actif = vivant;
    fichier.courant().nomFamille = nom;
    fichier.EcritCourant(fichier.ProchainNumero());
    fichier.Compte(1);
  }
  fichier.LitCourant(4);
  fichier.courant().actif = supprime;
  fichier.EcritCourant(4);
  fichier.Compte(-1);
  EXPECT_EQ(SurDisque(1).actif, 3);
  EXPECT_EQ(fichier.Nombre(), 5);
  EXPECT_EQ(SurDisque(4).actif, 0);
  EXPECT_EQ(SurDisque(4).nomFamille.brut(), Nom128("B"));
  EXPECT_EQ(fichier.ProchainNumero(), 6);
}

TEST_F(FichierFamilles, EchouentQuandLeCompteNeTientPlus) {
  Pose(32767, {vivant});
  EXPECT_EQ(PanneDe([&] { fichier.Compte(1); }), Panne::depassement);
  EXPECT_EQ(SurDisque(1).actif, 32767);
  EXPECT_EQ(fichier.nbActifs(), 32767);
}

TEST_F(FichierFamilles, ParcourentLesVivantsDansLOrdreDesNumeros) {
  Pose(3, {vivant, supprime, vivant, vivant, vivant});
  EXPECT_THAT(Parcourt(), ElementsAre(2, 4, 5));
  EXPECT_EQ(vus, 3);
  EXPECT_EQ(fichier.courant().nomFamille.brut(), Nom128("n5"));
}

TEST_F(FichierFamilles, NeTiennentPourVivantQueMoinsUn) {
  Pose(9, {1, -2, vivant, 32767, 0});
  EXPECT_THAT(Parcourt(), ElementsAre(4));
}

TEST_F(FichierFamilles, SArretentAuDernierQuandLEnTeteCompteTrop) {
  Pose(50, {vivant, supprime, vivant, supprime});
  EXPECT_THAT(Parcourt(), ElementsAre(2, 4));
  EXPECT_EQ(vus, 2);
  EXPECT_EQ(fichier.courant().nomFamille.brut(), Nom128("n5"));
}

TEST_F(FichierFamilles, SArretentAuCompteDeLEnTeteQuiCompteTropPeu) {
  Pose(1, {supprime, vivant, vivant});
  EXPECT_THAT(Parcourt(), ElementsAre(3));
}

TEST_F(FichierFamilles, VontAuBoutQuandLeCompteEstDejaDepasse) {
  Pose(0, {vivant, vivant});
  EXPECT_THAT(Parcourt(), ElementsAre(2, 3));
  Pose(-4, {supprime, vivant});
  EXPECT_THAT(Parcourt(), ElementsAre(3));
}

TEST_F(FichierFamilles, SArretentAuPremierSupprimeDUnCompteNul) {
  Pose(0, {supprime, vivant});
  EXPECT_THAT(Parcourt(), testing::IsEmpty());
}

TEST_F(FichierFamilles, NeVisitentRienDerriereUnEnTeteSeul) {
  Pose(3, {});
  EXPECT_THAT(Parcourt(), testing::IsEmpty());
  EXPECT_EQ(vus, 0);
}

TEST_F(FichierFamilles, NeVisitentPasUnEnregistrementTronque) {
  Pose(5, {vivant});
  dossier.Ecrit("GLR1.DAT", dossier.Lit("GLR1.DAT") + std::string(129, '\xFF'));
  EXPECT_THAT(Parcourt(), ElementsAre(2));
}

TEST_F(FichierFamilles, ParcourentMilleEnregistrementsEnPeuDeLectures) {
  Pose(1500, std::vector<std::int16_t>(1500, vivant));
  const std::vector<std::int32_t> numeros = Parcourt();
  ASSERT_EQ(numeros.size(), 1500U);
  EXPECT_EQ(numeros.front(), 2);
  EXPECT_EQ(numeros.back(), 1501);
  EXPECT_EQ(fichier.courant().nomFamille.brut(), Nom128("n1501"));
  EXPECT_LT(disque.journal().size(), 10U);
}

TEST_F(FichierFamilles, SeParcourentTousSupprimesComprisSansRegarderLeCompte) {
  Pose(1, {vivant, supprime, vivant});
  std::vector<std::int32_t> numeros;
  fichier.ParcourtTous(fichier.courant(), [&](std::int32_t numero) {
    numeros.push_back(numero);
    return true;
  });
  EXPECT_THAT(numeros, ElementsAre(2, 3, 4));
}

TEST_F(FichierFamilles, SArretentQuandLaVisiteLeDemande) {
  Pose(3, {vivant, supprime, vivant});
  std::vector<std::int32_t> numeros;
  fichier.ParcourtTous(fichier.courant(), [&](std::int32_t numero) {
    numeros.push_back(numero);
    return numero < 3;
  });
  EXPECT_THAT(numeros, ElementsAre(2, 3));
  EXPECT_EQ(fichier.courant().nomFamille.brut(), Nom128("n3"));
}

TEST_F(FichierFamilles, SeParcourentJusquAUnNumeroQuoiQueCompteLEnTete) {
  Pose(1, {vivant, supprime, vivant, vivant});
  EXPECT_THAT(ParcourtJusqua(4), ElementsAre(2, 3, 4));
  EXPECT_EQ(fichier.courant().nomFamille.brut(), Nom128("n4"));
  EXPECT_THAT(disque.journal(), ElementsAre("lit GLR1.DAT 130+390"));  // the length isn't asked for
}

TEST_F(FichierFamilles, NeSeLisentPasPourUnNumeroSousDeux) {
  Pose(1, {vivant});
  fichier.LitCourant(2);
  disque.OublieJournal();
  for (const std::int64_t dernier : {std::int64_t{1}, std::int64_t{0}, std::int64_t{-1},
                                     std::numeric_limits<std::int64_t>::min()}) {
    EXPECT_THAT(ParcourtJusqua(dernier), testing::IsEmpty()) << dernier;
  }
  EXPECT_EQ(fichier.courant().nomFamille.brut(), Nom128("n2"));
  EXPECT_THAT(disque.journal(), testing::IsEmpty());
}

TEST_F(FichierFamilles, SeParcourentEnZerosDerriereLeurFin) {
  Pose(1, {vivant});
  std::vector<std::int16_t> actifs;
  fichier.ParcourtEntre(2, 4, fichier.courant(), [&](std::int32_t) {
    actifs.push_back(fichier.courant().actif);
    return true;
  });
  EXPECT_THAT(actifs, ElementsAre(vivant, 0, 0));
  EXPECT_EQ(Octets(fichier.courant()), std::string(130, '\0'));
  EXPECT_EQ(dossier.Lit("GLR1.DAT").size(), 260U);
}

TEST_F(FichierFamilles, SArretentAvantLeNumeroQuandLaVisiteLeDemande) {
  Pose(3, {vivant, vivant, vivant});
  fichier.ParcourtEntre(2, 4, fichier.courant(), [](std::int32_t numero) { return numero < 3; });
  EXPECT_EQ(fichier.courant().nomFamille.brut(), Nom128("n3"));
}

// 504 records of 130 bytes are fetched at a time.
TEST_F(FichierFamilles, SEcriventPendantQuOnLesParcourtDUnePartieALaSuivante) {
  Pose(600, std::vector<std::int16_t>(600, vivant));
  fichier.ParcourtEntre(2, 601, fichier.courant(), [&](std::int32_t numero) {
    EXPECT_EQ(fichier.courant().nomFamille.brut(), Nom128("n" + std::to_string(numero)));
    fichier.courant().actif = supprime;
    fichier.EcritCourant(numero);
    fichier.Compte(-1);
    return true;
  });
  EXPECT_EQ(fichier.nbActifs(), 0);
  for (std::size_t numero = 2; numero <= 601; ++numero) {
    EXPECT_EQ(SurDisque(numero).actif, supprime) << numero;
  }
  EXPECT_EQ(disque.journal().size(), 2U + 2U * 600U);
  EXPECT_EQ(disque.journal().front(), "lit GLR1.DAT 130+65520");
}

TEST_F(FichierFamilles, EchouentAuDelaDuPlusGrandCompte) {
  Pose(-1, std::vector<std::int16_t>(32768, vivant));
  EXPECT_EQ(PanneDe([&] { Parcourt(); }), Panne::depassement);
}

TEST_F(FichierFamilles, ReparentLeCompteEnMemoirePuisSurDisque) {
  Pose(50, {vivant, vivant});
  fichier.RepareCompte(2);
  EXPECT_EQ(fichier.nbActifs(), 2);
  EXPECT_EQ(SurDisque(1).actif, 2);
  EXPECT_EQ(SurDisque(1).nomFamille.brut(), Nom128("GASTRELF.DAT"));
}

TEST_F(FichierFamilles, ReparentAussiLeCompteDUnFichierSansVivant) {
  Pose(50, {supprime});
  Parcourt();
  fichier.RepareCompte(vus);
  EXPECT_EQ(SurDisque(1).actif, 0);
}

TEST_F(FichierFamilles, NEcriventRienQuandLeCompteEstJuste) {
  Pose(2, {vivant, vivant});
  fichier.RepareCompte(2);
  EXPECT_THAT(disque.changements(), testing::IsEmpty());
}

TEST_F(FichierFamilles, IgnorentLEchecDUneReparation) {
  Pose(50, {vivant, vivant});
  disque.EchoueSur("écrit", Panne::disquePlein);
  EXPECT_NO_THROW(fichier.RepareCompte(2));
  EXPECT_EQ(fichier.nbActifs(), 2);
  EXPECT_EQ(SurDisque(1).actif, 50);
}

TEST(Tenu, LaissePasserCeQuiTientEtEchoueSurLeReste) {
  EXPECT_EQ(Tenu<std::int16_t>(32767), 32767);
  EXPECT_EQ(Tenu<std::int16_t>(-32768), -32768);
  EXPECT_THROW(Tenu<std::int16_t>(32768), ErreurExecution);
  EXPECT_THROW(Tenu<std::int16_t>(-32769), ErreurExecution);
  EXPECT_EQ(Tenu<std::int32_t>(2'147'483'647), 2'147'483'647);
  EXPECT_THROW(Tenu<std::int32_t>(2'147'483'648), ErreurExecution);
}

}  // namespace
}  // namespace gastrelle::essai
