// What every child window owes its user, whichever it is: pages that are made on demand without
// anybody noticing, tabs that open or refuse, the keyboard, the help.

#include <functional>
#include <utility>

#include <QAbstractButton>
#include <QKeySequence>
#include <QScrollArea>
#include <QTest>

#include "controles/BandeauLogo.h"
#include "controles/BoitesTexte.h"
#include "controles/Boutons.h"
#include "controles/Legende.h"
#include "controles/TailleLecture.h"
#include "controles/ZoneTexte.h"
#include "doublures/FenetreEssai.h"
#include "doublures/LecteurEcran.h"
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
  void OuvreActive() {
    Ouvre();
    fenetre->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
  }
  /// Goes to a tab and puts the focus on each control of its page that the Tab key reaches, then on
  /// the strip of tabs; `essaie` is told the name of the control.
  void SurChaqueControle(int onglet, const std::function<void(QWidget&)>& essaie) {
    VaA(onglet);
    std::vector<QWidget*> controles;
    for (const QByteArray& nom :
         QByteArray(ligne.clavier[static_cast<std::size_t>(onglet) - 1]).split(' ')) {
      controles.push_back(&Trouve(Page(onglet), nom.constData()));
    }
    if (auto* bande = fenetre->findChild<QTabBar*>()) {
      controles.push_back(bande);
    }
    for (QWidget* controle : controles) {
      SCOPED_TRACE(controle->objectName().toStdString());
      VaA(onglet);
      controle->setFocus();
      if (controle->hasFocus()) {  // what a gesture before this one disabled is left out
        essaie(*controle);
      }
    }
  }
  /// The button that ends what is done on a page, if there is one that shows.
  QPushButton* Conclusion(int onglet) {
    for (auto* bouton : Page(onglet).findChildren<QPushButton*>()) {
      const QString titre = bouton->text().remove(u'&');
      if ((titre == "Valider" || titre == "Afficher") && bouton->isVisible()) {
        return bouton;
      }
    }
    return nullptr;
  }
  /// The list of the first page that the whole window works on.
  QComboBox* ListePrincipale() {
    const auto listes = Page(1).findChildren<QComboBox*>();
    for (auto* liste : listes) {
      if (QByteArray(ligne.clavier[0]).startsWith(liste->objectName().toLatin1()) &&
          listes.size() > 1) {
        continue;  // the families come before their recipes
      }
      return liste;
    }
    return nullptr;
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

TEST_P(FenetresAOnglets, CeQuUnChangementDOngletVideRevientParCtrlZ) {
  constexpr int ajouter = 2;
  Ouvre(ajouter);
  std::vector<QWidget*> boites;
  for (QWidget* boite : Page(ajouter).findChildren<QWidget*>()) {
    const auto* uneLigne = dynamic_cast<LigneTexte*>(boite);
    const auto* plusieurs = dynamic_cast<ZoneTexte*>(boite);
    const bool editable = (uneLigne != nullptr && !uneLigne->isReadOnly()) ||
                          (plusieurs != nullptr && !plusieurs->isReadOnly());
    if (editable && boite->isEnabled()) {
      boites.push_back(boite);
      Tape(*boite, "Une saisie");
    }
  }
  EXPECT_EQ(boites.size() >= 2, QByteArray(ligne.clavier[ajouter - 1]).contains("txt"));
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, ajouter);
  for (QWidget* boite : boites) {
    EXPECT_EQ(Texte(*boite), "") << boite->objectName().toStdString();
    QTest::keyClick(boite, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Texte(*boite), "Une saisie") << boite->objectName().toStdString();
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

TEST_P(Fenetres, LaCleDUneLegendeMeneASonControle) {
  OuvreActive();
  int essayees = 0;
  for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
    VaA(onglet);
    for (const auto* legende : Page(onglet).findChildren<QLabel*>()) {
      const QKeySequence cle = QKeySequence::mnemonic(legende->text());
      QWidget* controle = legende->buddy();
      if (cle.isEmpty() || controle == nullptr || !controle->isEnabled() ||
          !controle->isVisible()) {
        continue;
      }
      ++essayees;
      BoutonAide(onglet).setFocus();
      Frappe(cle[0].key(), Qt::AltModifier);
      EXPECT_TRUE(controle->hasFocus()) << onglet << ' ' << legende->text().toStdString();
    }
  }
  EXPECT_GE(essayees, ligne.onglets());
}

TEST_P(Fenetres, LaMoletteNeChangeNiOngletNiListeFermee) {
  Ouvre();
  for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
    VaA(onglet);
    for (auto* liste : Page(onglet).findChildren<QComboBox*>()) {
      const int choix = liste->currentIndex();
      for (const int crans : {-1, 1}) {
        Roule(*liste, crans);
        EXPECT_EQ(liste->currentIndex(), choix) << liste->objectName().toStdString();
      }
    }
    if (auto* bande = fenetre->findChild<QTabBar*>()) {
      for (const int crans : {-1, 1}) {
        Roule(*bande, crans);
        EXPECT_EQ(bande->currentIndex() + 1, onglet);
      }
    }
  }
}

TEST_P(Fenetres, LesTouchesDeTailleAgissentDOuQuOnSoit) {
  OuvreActive();
  const double avant = TailleLecture();
  for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
    SurChaqueControle(onglet, [&](QWidget&) {
      Frappe(Qt::Key_Plus, Qt::ControlModifier);
      EXPECT_EQ(TailleLecture(), avant + 1);
      Frappe(Qt::Key_0, Qt::ControlModifier);
      EXPECT_EQ(TailleLecture(), avant);
    });
  }
}

TEST_P(FenetresAOnglets, CtrlPageFaitLeTourDesOngletsDOuQuOnSoit) {
  OuvreActive();
  const int nombre = ligne.onglets();
  for (const auto& [touche, pas] : {std::pair(Qt::Key_PageDown, 1), {Qt::Key_PageUp, nombre - 1}}) {
    for (int de = 1; de <= nombre; ++de) {
      int attendu = de;
      do {
        attendu = (attendu - 1 + pas) % nombre + 1;
      } while (Refuse(de, attendu));
      SurChaqueControle(de, [&, touche = touche](QWidget&) {
        Frappe(touche, Qt::ControlModifier);
        EXPECT_EQ(onglet(), attendu);
      });
    }
  }
  EXPECT_THAT(b.son.joues, testing::IsEmpty());
}

TEST_P(FenetresAOnglets, UnOngletRefuseALAirInactifSousToutePalette) {
  Ouvre();
  const QPalette avant = QApplication::palette();
  QPalette sombre = avant;
  sombre.setColor(QPalette::Disabled, QPalette::WindowText, Qt::darkCyan);
  const auto& bande = Le<QTabBar>("TabStrip1");
  for (const QPalette& palette : {avant, sombre}) {
    for (int de = 1; de <= ligne.onglets(); ++de) {
      VaA(de);
      QApplication::setPalette(palette);
      QApplication::processEvents();  // the windows are told then
      for (int vers = 1; vers <= ligne.onglets(); ++vers) {
        const QColor inactif = palette.color(QPalette::Disabled, QPalette::WindowText);
        EXPECT_EQ(bande.tabTextColor(vers - 1), Refuse(de, vers) ? inactif : QColor())
            << de << ' ' << vers;
        EXPECT_TRUE(bande.isTabEnabled(vers - 1));
      }
    }
  }
  QApplication::setPalette(avant);
}

TEST_P(Fenetres, EntreePresseLeBoutonQuiALeFocus) {
  OuvreActive();
  const EcouteF1 ecoute;
  for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
    VaA(onglet);
    BoutonAide(onglet).setFocus();
    Frappe(Qt::Key_Return);
    Frappe(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(ecoute.appuis, 2 * onglet);
    for (const auto* bouton : Page(onglet).findChildren<QPushButton*>()) {
      EXPECT_TRUE(bouton->autoDefault()) << bouton->objectName().toStdString();
    }
  }
}

TEST_P(Fenetres, CtrlEntreeConclutLaPageDOuQuOnSoit) {
  OuvreActive();
  for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
    for (const Qt::Key entree : {Qt::Key_Return, Qt::Key_Enter}) {
      SurChaqueControle(onglet, [&](QWidget& controle) {
        if (!Page(onglet).isAncestorOf(&controle)) {
          return;  // the strip of tabs
        }
        const QString avant = Texte(controle);
        const QPushButton* conclusion = Conclusion(onglet);
        const QObject essai;
        int clics = 0;
        if (conclusion != nullptr) {
          QObject::connect(conclusion, &QPushButton::clicked, &essai, [&] { ++clics; });
        }
        Frappe(entree, Qt::ControlModifier);
        EXPECT_EQ(clics, conclusion == nullptr ? 0 : 1) << onglet;
        EXPECT_FALSE(Texte(controle).contains(avant + u'\n'));
      });
    }
  }
  EXPECT_FALSE(FinVue());
}

TEST_P(FenetresAOnglets, UneConclusionInactiveNeRepondPas) {
  OuvreActive();
  for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
    VaA(onglet);
    if (QPushButton* conclusion = Conclusion(onglet)) {
      b.disque.OublieJournal();
      conclusion->setEnabled(false);
      BoutonAide(onglet).setFocus();
      Frappe(Qt::Key_Return, Qt::ControlModifier);
      EXPECT_EQ(this->onglet(), onglet);
      EXPECT_THAT(b.disque.journal(), testing::IsEmpty());
    }
  }
}

TEST_P(FenetresAOnglets, AltFlecheParcourtLaListeDepuisSonTexte) {
  b.AjouteRecette(3, "Beignets", "Des beignets.");
  OuvreActive();
  QComboBox& liste = *ListePrincipale();
  ASSERT_GE(liste.count(), 2);
  const int derniere = liste.count() - 1;
  SurChaqueControle(1, [&](QWidget& controle) {
    const bool estListe = qobject_cast<QComboBox*>(&controle) != nullptr;
    const bool surLaPage = Page(1).isAncestorOf(&controle);
    if (estListe || !surLaPage) {
      return;
    }
    dynamic_cast<ComboListe&>(liste).Choisit(0);
    for (const auto& [touche, attendu] :
         {std::pair(Qt::Key_Up, 0), {Qt::Key_Down, 1}, {Qt::Key_Up, 0}}) {
      controle.setFocus();
      b.disque.OublieJournal();
      const int avant = liste.currentIndex();
      Frappe(touche, Qt::AltModifier);
      EXPECT_EQ(liste.currentIndex(), attendu);
      EXPECT_EQ(b.disque.journal().empty(), avant == attendu);
    }
    dynamic_cast<ComboListe&>(liste).Choisit(derniere);
    Frappe(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(liste.currentIndex(), derniere);
  });
}

TEST_P(FenetresAOnglets, AltFlecheSurUneListeFermeeLOuvre) {
  OuvreActive();
  for (auto* liste : Page(1).findChildren<QComboBox*>()) {
    const int choix = liste->currentIndex();
    for (const Qt::Key touche : {Qt::Key_Down, Qt::Key_Up}) {
      liste->setFocus();
      Frappe(touche, Qt::AltModifier);
      EXPECT_TRUE(liste->view()->isVisible());
      Frappe(Qt::Key_PageDown, Qt::ControlModifier);
      EXPECT_EQ(onglet(), 1);  // an open list has the keyboard to itself
      Frappe(Qt::Key_Escape);
      EXPECT_EQ(liste->currentIndex(), choix);
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

TEST_P(Fenetres, UnBoutonSeNommeCommeOnLeLit) {
  OuvreEtParcourt();
  for (auto* bouton : fenetre->findChildren<QPushButton*>()) {
    QString titre = bouton->text();
    titre.remove(u'&');
    EXPECT_EQ(Dit(*bouton, QAccessible::Name), titre.isEmpty() ? bouton->toolTip() : titre);
    EXPECT_EQ(Dit(*bouton, QAccessible::Description), bouton->toolTip());
  }
}

TEST_P(Fenetres, ToutDessinAUnNom) {
  Ouvre();
  for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
    VaA(onglet);
    for (const auto* etiquette : Page(onglet).findChildren<QLabel*>()) {
      if (etiquette->isVisible() && !etiquette->pixmap().isNull()) {
        EXPECT_FALSE(etiquette->accessibleName().isEmpty())
            << onglet << ' ' << etiquette->objectName().toStdString();
      }
    }
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
