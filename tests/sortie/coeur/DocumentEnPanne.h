// A document that may not come about, each of the eleven in both forms.
#pragma once

#include <map>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "sortie/Documents.h"
#include "sortie/DocumentsEssai.h"

namespace gastrelle::essai {

inline constexpr const char* ancien = "l'ancien document";

class DocumentEnPanne : public testing::TestWithParam<DocumentEssai> {
 protected:
  /// A folder with its data files and the document that was sent before.
  class Essai : public Bibliotheque {
   public:
    explicit Essai(const DocumentEssai& document, const Commande& commande)
        : nom(document.radical + Suffixe(commande.extension)),
          document_(document),
          commande_(commande) {
      horloge.date = jourDesModeles;
      dossier.Ecrit(nom, ancien);
      avant_ = ContenuSans(dossier, nom);
    }
    void Envoie() { EnvoieDocument(*module, document_.vue, commande_.extension); }
    /// Nothing is opened, the user is told once, and no other file has changed.
    void AttendEchec() {
      EXPECT_THAT(messages.vus, testing::ElementsAre(MessageVu{DepuisUtf8(commande_.nonCree),
                                                               Icone::critique, "Gastrelle 2005"}));
      EXPECT_THAT(association.cibles, testing::IsEmpty());
      EXPECT_FALSE(pointeur.sablier);
      AttendLeReste();
    }
    void AttendReussite() {
      EXPECT_EQ(dossier.Lit(nom), Modele(document_.modele));
      EXPECT_THAT(messages.vus, testing::IsEmpty());
      EXPECT_EQ(association.cibles.size(), 1U);
      AttendLeReste();
    }
    void AttendLeReste() { EXPECT_EQ(ContenuSans(dossier, nom), avant_); }

    const std::string nom;

   private:
    const DocumentEssai& document_;
    const Commande& commande_;
    std::map<std::string, std::string> avant_;
  };

  /// Runs on a fresh folder for both extensions.
  template <class Fait>
  void PourChaqueCommande(Fait fait) {
    for (const Commande& commande : commandes) {
      SCOPED_TRACE(Suffixe(commande.extension));
      Essai essai(GetParam(), commande);
      fait(essai);
    }
  }
};

}  // namespace gastrelle::essai
