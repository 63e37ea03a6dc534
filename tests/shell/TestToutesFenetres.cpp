// What every child window owes its user, whichever it is: pages that are made on demand without
// anybody noticing, tabs that open or refuse, the keyboard, the help.

#include <QAbstractButton>
#include <QKeySequence>
#include <QScrollArea>
#include <QTest>

#include "controles/BandeauLogo.h"
#include "controles/Boutons.h"
#include "controles/Legende.h"
#include "controles/ZoneTexte.h"
#include "doublures/FenetreEssai.h"
#include "doublures/ToutesFenetres.h"
#include "shell/MenusCadre.h"

namespace gastrelle::essai {
namespace {

using testing::SizeIs;

constexpr DescriptionFenetre sansOnglet{.nom = "frmSansOnglet",
                                        .titre = u"Sans onglet",
                                        .vue = EntreeVue::mesNotes,
                                        .logo = "logo-notes"};

/// The least that a window without tabs is: what holds for all windows holds for it.
class frmSansOnglet final : public FenetreEnfant {
 public:
  frmSansOnglet(Module1& module, gastrelle::Cadre& cadre)
      : FenetreEnfant(module, cadre, sansOnglet) {
    auto* texte = new ZoneTexte("txtEssai", sansLimite, this);
    auto* boutons = new PiedBoutons;
    auto* page = new QVBoxLayout(this);
    page->addWidget(new BandeauLogo(sansOnglet.logo, "Sans onglet", "Un essai", this));
    page->addWidget(Legende("&Un texte", texte));
    page->addWidget(texte, 1);
    page->addLayout(boutons);
    boutons->Aide("cmdAide");
  }
};

std::vector<LigneEssai> AvecUneSansOnglet() {
  std::vector<LigneEssai> lignes(ToutesLesFenetres().begin(), ToutesLesFenetres().end());
  lignes.push_back({"frmSansOnglet",
                    "mnuViewMesNotes",
                    "MesNotes",
                    90,
                    {},
                    {"txtEssai cmdAide"},
                    [](Module1& module, gastrelle::Cadre& cadre) -> std::unique_ptr<FenetreEnfant> {
                      return std::make_unique<frmSansOnglet>(module, cadre);
                    }});
  return lignes;
}

std::vector<LigneEssai> AvecOnglets() {
  std::vector<LigneEssai> lignes(ToutesLesFenetres().begin(), ToutesLesFenetres().end());
  std::erase_if(lignes, [](const LigneEssai& ligne) { return ligne.onglets() == 1; });
  return lignes;
}

class Fenetres : public FenetreEssai<FenetreEnfant>,
                 public testing::WithParamInterface<LigneEssai> {
 protected:
  Fenetres() { b.Garnit(); }

  std::unique_ptr<FenetreEnfant> Cree() override { return ligne.cree(*b.module, *cadre); }

  QWidget& Page(int onglet) {
    return fenetre->findChild<QTabBar*>() == nullptr
               ? *fenetre
               : Le(("Frame1(" + std::to_string(onglet) + ")").c_str());
  }
  QStringList PagesFaites() {
    QStringList noms;
    const auto& cadres = *fenetre->findChild<QStackedWidget*>();
    for (int i = 0; i < cadres.count(); ++i) {
      noms << qobject_cast<QScrollArea*>(cadres.widget(i))->widget()->objectName();
    }
    return noms;
  }
  bool Refuse(int de, int vers) const {
    return std::any_of(ligne.refus.begin(), ligne.refus.end(),
                       [&](const ChangementRefuse& r) { return r.de == de && r.vers == vers; });
  }
  QPushButton& BoutonAide(int onglet) {
    for (auto* bouton : Page(onglet).findChildren<QPushButton*>()) {
      if (bouton->objectName().startsWith("cmdAide")) {
        return *bouton;
      }
    }
    throw std::runtime_error("pas de bouton d'aide");
  }

  /// The controls that the key Tab visits, from behind the help button on and until it is back
  /// there. The strip of tabs comes first, and isn't told.
  std::vector<QWidget*> TourDuClavier(int onglet) {
    constexpr std::size_t plusQueTous = 100;
    QWidget& aide = BoutonAide(onglet);
    aide.setFocus();
    std::vector<QWidget*> tour;
    do {
      QTest::keyClick(fenetre->focusWidget(), Qt::Key_Tab);
      tour.push_back(fenetre->focusWidget());
    } while (tour.back() != &aide && tour.size() < plusQueTous);
    if (auto* bande = fenetre->findChild<QTabBar*>()) {
      EXPECT_EQ(tour.front(), bande);
      std::erase(tour, bande);
    }
    return tour;
  }
  /// Where a control stands in the window.
  QRect Place(const QWidget& controle) const {
    return {controle.mapTo(fenetre.get(), QPoint()), controle.size()};
  }
  void AttendDeHautEnBas(const std::vector<QWidget*>& tour) {
    for (std::size_t i = 1; i < tour.size(); ++i) {
      const QRect avant = Place(*tour[i - 1]);
      const QRect ici = Place(*tour[i]);
      const bool memeRang = ici.top() < avant.bottom() && avant.top() < ici.bottom();
      EXPECT_TRUE(memeRang ? ici.left() > avant.left() : ici.top() > avant.top())
          << tour[i - 1]->objectName().toStdString() << ", " << tour[i]->objectName().toStdString();
    }
  }
  /// The access keys of a page's buttons and captions.
  static QStringList ClesDe(const QWidget& page) {
    QStringList cles;
    const auto retient = [&](const QString& texte) {
      const QString cle = QKeySequence::mnemonic(texte).toString();
      if (!cle.isEmpty()) {
        cles << cle;
      }
    };
    for (const auto* bouton : page.findChildren<QAbstractButton*>()) {
      retient(bouton->text());
    }
    for (const auto* etiquette : page.findChildren<QLabel*>()) {
      if (etiquette->buddy() != nullptr) {
        retient(etiquette->text());
      }
    }
    return cles;
  }
  static QStringList ClesDuCadre() {
    QStringList cles;
    for (const EntreeMenu& entree : EntreesMenus()) {
      if (entree.genre == Genre::menu) {
        cles << QKeySequence::mnemonic(QString::fromUtf16(entree.titre)).toString();
      }
    }
    return cles;
  }

  const LigneEssai& ligne = GetParam();
};

INSTANTIATE_TEST_SUITE_P(Toutes, Fenetres, testing::ValuesIn(AvecUneSansOnglet()),
                         testing::PrintToStringParamName());

class FenetresAOnglets : public Fenetres {};

INSTANTIATE_TEST_SUITE_P(Toutes, FenetresAOnglets, testing::ValuesIn(AvecOnglets()),
                         testing::PrintToStringParamName());

TEST_P(Fenetres, PortentLeurNom) {
  Ouvre();
  EXPECT_EQ(fenetre->objectName(), ligne.nom);
}

TEST_P(FenetresAOnglets, OntLeursOnglets) {
  Ouvre();
  EXPECT_EQ(Le<QTabBar>("TabStrip1").count(), ligne.onglets());
}

TEST_P(FenetresAOnglets, UnePageSeFaitQuandOnYEntreEtUneFois) {
  Ouvre();
  EXPECT_EQ(PagesFaites(), QStringList{"Frame1(1)"});
  CliqueOnglet(*fenetre, 2);
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 2);
  EXPECT_EQ(PagesFaites(), (QStringList{"Frame1(1)", "Frame1(2)"}));
}

TEST_P(Fenetres, AucunePageNAgranditLaFenetre) {
  Ouvre();
  const QSize moindre = fenetre->minimumSizeHint();
  const QSize naturelle = fenetre->sizeHint();
  for (int onglet = 2; onglet <= ligne.onglets(); ++onglet) {
    VaA(onglet);
    EXPECT_EQ(fenetre->minimumSizeHint(), moindre) << onglet;
    EXPECT_EQ(fenetre->sizeHint(), naturelle) << onglet;
  }
}

TEST_P(Fenetres, ChaqueOngletPoseSonContexte) {
  Ouvre();
  for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
    VaA(onglet);
    EXPECT_EQ(cadre->contextes.back(), ligne.premierContexte + onglet - 1);
  }
}

TEST_P(FenetresAOnglets, UnChangementDOngletPasseOuSeRefuseParLeSon) {
  Ouvre();
  std::size_t sons = 0;
  for (int de = 1; de <= ligne.onglets(); ++de) {
    for (int vers = 1; vers <= ligne.onglets(); ++vers) {
      SCOPED_TRACE(std::to_string(de) + " > " + std::to_string(vers));
      VaA(de);
      CliqueOnglet(*fenetre, vers);
      const bool refuse = Refuse(de, vers);
      sons += refuse ? 1 : 0;
      EXPECT_EQ(onglet(), refuse ? de : vers);
      EXPECT_TRUE(Page(refuse ? de : vers).isVisible());
      EXPECT_THAT(b.son.joues, SizeIs(sons));
    }
  }
  for (const std::string& son : b.son.joues) {
    EXPECT_EQ(son, (b.dossier.chemin() / "Exclamation").string());
  }
  EXPECT_THAT(b.messages.vus, testing::IsEmpty());
}

TEST_P(Fenetres, LaToucheTabVisiteChaquePageDeHautEnBas) {
  Ouvre();
  for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
    SCOPED_TRACE(onglet);
    VaA(onglet);
    const std::vector<QWidget*> tour = TourDuClavier(onglet);
    QStringList noms;
    for (const QWidget* controle : tour) {
      noms << controle->objectName();
    }
    EXPECT_EQ(noms.join(u' ').toStdString(), ligne.clavier[static_cast<std::size_t>(onglet) - 1]);
    AttendDeHautEnBas(tour);
  }
}

TEST_P(Fenetres, LesClesDAccesDUnePageSontUniquesEtLaissentLesMenusDuCadre) {
  OuvreEtParcourt();
  ASSERT_EQ(ClesDuCadre().size(), 5);
  for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
    QStringList prises = ClesDuCadre();
    const QStringList cles = ClesDe(Page(onglet));
    EXPECT_FALSE(cles.isEmpty());
    for (const QString& cle : cles) {
      EXPECT_FALSE(prises.contains(cle)) << onglet << ' ' << cle.toStdString();
      prises << cle;
    }
  }
}

TEST_P(Fenetres, ChaquePageAUnBoutonDAideQuiEnvoieLaToucheF1) {
  Ouvre();
  fenetre->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
  const EcouteF1 ecoute;
  for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
    VaA(onglet);
    Clique(BoutonAide(onglet));
    EXPECT_EQ(ecoute.appuis, onglet);
    EXPECT_EQ(BoutonAide(onglet).toolTip(), "Aide");
  }
}

TEST_P(Fenetres, RefusentUnEnregistrementQueLeurListeNATPas) {
  Ouvre();
  EXPECT_EQ(PanneDe([&] { fenetre->MontreEnregistrement(30'000); }), Panne::fichierIntrouvable);
}

TEST_P(Fenetres, LActivationAvecUneErreurFataleFinitLeProgramme) {
  Ouvre();
  b.module->erreurFatale = true;
  EXPECT_THROW(fenetre->Active(), FinDuProgramme);
  AttendMessage("Erreur fatale. Impossibilité de continuer.", Icone::critique);
}

}  // namespace
}  // namespace gastrelle::essai
