// A window with tabs on a small library, with the verbs that the tests of all of them use.
#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>

#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/Conversion.h"
#include "controles/FenetreOnglets.h"
#include "doublures/ApplicationEssai.h"
#include "doublures/Bibliotheque.h"
#include "doublures/CadreEssai.h"
#include "doublures/Depart.h"
#include "doublures/EcouteF1.h"
#include "doublures/Ecran.h"
#include "doublures/Pannes.h"

namespace gastrelle::essai {

template <class Fenetre>
class FenetreEssai : public testing::Test {
 protected:
  ~FenetreEssai() override { EcouteMessages(nullptr); }

  void Ouvre(int onglet = 1) {
    b.Demarre();
    OublieFin();
    EcouteMessages(&b.messages);
    cadre.emplace(*b.module);
    fenetre = Cree();
    fenetre->resize(800, 600);
    fenetre->show();
    fenetre->Active();
    if (onglet != 1) {
      CliqueOnglet(*fenetre, onglet);
    }
    b.disque.OublieJournal();
  }

  /// Goes to a tab, also where a click may not; a window without tabs is on its only page.
  void VaA(int onglet) {
    if (auto* hote = dynamic_cast<FenetreOnglets*>(fenetre.get())) {
      hote->MontreOnglet(onglet);
    }
  }
  /// Opens the window and goes once through its tabs, back to the first: each has made its page.
  void OuvreEtParcourt() {
    Ouvre();
    const auto* bande = fenetre->template findChild<QTabBar*>();
    for (int parcouru = bande == nullptr ? 0 : bande->count(); parcouru > 0; --parcouru) {
      VaA(parcouru);
    }
    b.disque.OublieJournal();
  }

  /// The window; tests over several windows of one kind say which.
  virtual std::unique_ptr<Fenetre> Cree() {
    if constexpr (std::is_constructible_v<Fenetre, Module1&, gastrelle::Cadre&>) {
      return std::make_unique<Fenetre>(*b.module, *cadre);
    } else {
      return nullptr;
    }
  }

  template <class Controle = QWidget>
  Controle& Le(const char* nom) {
    return Trouve<Controle>(*fenetre, nom);
  }
  int onglet() { return Le<QTabBar>("TabStrip1").currentIndex() + 1; }
  bool aLeFocus(const char* nom) { return fenetre->focusWidget() == &Le(nom); }

  /// The one message that was shown, with the application's title.
  void AttendMessage(std::string_view utf8, Icone icone = Icone::information) const {
    EXPECT_THAT(b.messages.vus, testing::ElementsAre(MessageVu{DepuisUtf8(utf8), icone,
                                                               std::string(titreApplication)}));
  }
  /// The program ended by the fatal message, which came once.
  void AttendFinFatale() const {
    EXPECT_EQ(FinVue(), 1);
    const auto fatal = DepuisUtf8("Erreur fatale. Impossibilité de continuer.");
    EXPECT_EQ(std::count_if(b.messages.vus.begin(), b.messages.vus.end(),
                            [&](const MessageVu& m) { return m.texte == fatal; }),
              1);
  }

  /// Runs an operation: the hourglass stands at its first call of the disk (or the first one whose
  /// line of the journal begins so) and is gone once all is over.
  template <class Operation>
  void AttendSablier(Operation operation, const std::string& debut = {}) {
    std::optional<bool> sablier;
    b.pointeur.Normal();
    b.disque.pendant = [&](const std::string& ligne) {
      if (!sablier && ligne.starts_with(debut)) {
        sablier = b.pointeur.sablier;
      }
    };
    operation();
    b.disque.pendant = nullptr;
    EXPECT_THAT(sablier, testing::Optional(true));
    EXPECT_FALSE(b.pointeur.sablier);
  }
  /// From now on every message has to find the pointer normal.
  void ExigePointeurNormalAuxMessages() {
    b.messages.pendant = [this] {
      EXPECT_FALSE(b.pointeur.sablier) << VersUtf8(b.messages.vus.back().texte);
    };
  }
  /// The program ended because that file wasn't there any more, which was told first, and nothing
  /// was written.
  void AttendFinFatale(Donnees disparu) const {
    AttendFinFatale();
    ASSERT_THAT(b.messages.vus, testing::SizeIs(2));
    EXPECT_EQ(b.messages.vus[0], NonTrouve(b, Nom(disparu)));
    EXPECT_THAT(b.disque.changements(), testing::IsEmpty());
  }

  /// The gestures on a tab, once for each write of the operation that they bring, which fails: each
  /// time on a fresh library, as `prepare` leaves it with its answers to questions, and each time
  /// the program ends. `verifie` looks at what it said and what is then on file.
  template <class Prepare, class Gestes, class Verifie>
  static void AChaqueEcriture(std::size_t ecritures, int onglet, Prepare prepare, Gestes gestes,
                              Verifie verifie) {
    for (std::size_t n = 1; n <= ecritures; ++n) {
      SCOPED_TRACE("écriture " + std::to_string(n));
      Bibliotheque autre;
      prepare(autre);
      autre.Demarre();
      OublieFin();
      EcouteMessages(&autre.messages);
      CadreEssai unCadre(*autre.module);
      Fenetre uneFenetre(*autre.module, unCadre);
      uneFenetre.show();
      uneFenetre.Active();
      CliqueOnglet(uneFenetre, onglet);
      autre.disque.EchoueALaNiemeEcriture(n, Panne::disquePlein);
      gestes(uneFenetre);
      EXPECT_EQ(FinVue(), 1);
      verifie(autre, n);
      EcouteMessages(nullptr);
    }
  }
  /// The same for an operation under the guard: the one fatal message tells it.
  template <class Prepare, class Gestes, class Verifie>
  static void FinitAChaqueEcriture(std::size_t ecritures, int onglet, Prepare prepare,
                                   Gestes gestes, Verifie verifie) {
    AChaqueEcriture(ecritures, onglet, prepare, gestes,
                    [&](const Bibliotheque& autre, std::size_t n) {
                      EXPECT_THAT(autre.messages.vus, testing::SizeIs(1));
                      EXPECT_FALSE(autre.pointeur.sablier);
                      verifie(autre, n);
                    });
  }
  template <class Gestes, class Verifie>
  static void FinitAChaqueEcriture(std::size_t ecritures, int onglet, Gestes gestes,
                                   Verifie verifie) {
    FinitAChaqueEcriture(
        ecritures, onglet, [](Bibliotheque&) {}, gestes, verifie);
  }

  Bibliotheque b;
  std::optional<CadreEssai> cadre;
  std::unique_ptr<Fenetre> fenetre;
};

}  // namespace gastrelle::essai
