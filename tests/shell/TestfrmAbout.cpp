// The about dialog, through its controls.

#include <fstream>

#include <QFile>
#include <QLabel>
#include <QSettings>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/Conversion.h"
#include "doublures/ApplicationEssai.h"
#include "doublures/Bibliotheque.h"
#include "doublures/Ecran.h"
#include "shell/frmAbout.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class APropos : public testing::Test {
 protected:
  void SetUp() override {
    OublieFin();
    EcouteMessages(&b.messages);
    Ouvre();
  }

  void TearDown() override {
    qputenv("PATH", chemins);
    QSettings(QSettings::UserScope, "Gastrelle 2005").remove("Adresses");
  }

  static void Regle(const QString& lien, const QString& adresse) {
    QSettings(QSettings::UserScope, "Gastrelle 2005").setValue("Adresses/" + lien, adresse);
  }

  void Ouvre() {
    dialogue = std::make_unique<frmAbout>(*b.module, nullptr);
    dialogue->show();
  }

  QString Lit(const char* nom) { return Texte(Trouve(*dialogue, nom)); }

  /// A tool of the system that writes its arguments to a file when it is started.
  void InstalleOutil(const std::string& nom) {
    const std::filesystem::path outil = outils.chemin() / nom;
    std::ofstream(outil) << "#!/bin/sh\necho \"$*\" > \"" << Temoin(nom).string()
                         << ".tmp\"\n/bin/mv \"" << Temoin(nom).string() << ".tmp\" \""
                         << Temoin(nom).string() << "\"\n";
    std::filesystem::permissions(outil, std::filesystem::perms::owner_all);
  }

  [[nodiscard]] std::filesystem::path Temoin(const std::string& nom) const {
    return outils.chemin() / (nom + ".lu");
  }

  /// The words with which a tool was started, once it was.
  QString Arguments(const std::string& nom) {
    const QString temoin = QString::fromStdString(Temoin(nom).string());
    QFile fichier(temoin);
    if (!QTest::qWaitFor([&] { return fichier.exists(); }) || !fichier.open(QIODevice::ReadOnly)) {
      return QStringLiteral("jamais lancé");
    }
    return QString::fromUtf8(fichier.readAll()).trimmed();
  }

  void DemandeInfos() {
    qputenv("PATH", outils.chemin().c_str());
    Clique(Trouve(*dialogue, "cmdSysInfo"));
  }

  Bibliotheque b;
  DossierEssai outils;
  QByteArray chemins = qgetenv("PATH");
  std::unique_ptr<frmAbout> dialogue;
};

TEST_F(APropos, DitLeProgrammeEtSaVersion) {
  EXPECT_EQ(dialogue->windowTitle(), "A propos de Gastrelle 2005");
  EXPECT_EQ(Lit("lblTitle"), "Gastrelle 2005");
  EXPECT_EQ(Lit("lblDescription"), "Tout pour la gastronomie ! Ou presque...");
  EXPECT_EQ(Lit("lblVersion"), "Version " VERSION_ATTENDUE);
  EXPECT_THAT(QStringLiteral(VERSION_ATTENDUE).split(u'.'), testing::SizeIs(3));
}

TEST_F(APropos, DitSaLicence) {
  EXPECT_EQ(Lit("lblCopyright"), Fr("© 2026 Gastrelle. Logiciel libre, sous licence MIT."));
}

TEST_F(APropos, DeclineToutLeReste) {
  EXPECT_EQ(Lit("txtDisclaimer"),
            Fr("L 'auteur décline toute responsabilité quant à d'éventuels dommages résultant de "
               "l'utilisation de ''Gastrelle 2005'' et n'assurera aucune garantie en ce sens."));
  Tape(Trouve(*dialogue, "txtDisclaimer"), "x");
  EXPECT_TRUE(Lit("txtDisclaimer").startsWith("L 'auteur"));
}

TEST_F(APropos, LesLegendesEtLesBoutonsOntLeursTextes) {
  EXPECT_EQ(Lit("lbInfolWeb"), "Internet");
  EXPECT_EQ(Lit("lblWeb"), Fr(". mise à jour, recettes"));
  EXPECT_EQ(Lit("lblEmail"), ". e-mail :");
  EXPECT_EQ(Lit("cmdOK"), "&OK");
  EXPECT_EQ(Lit("cmdSysInfo"), Fr("Infos &système..."));
}

TEST_F(APropos, MontreLesAdresses) {
  Regle("SiteWeb", "https://localhost/cuisine");
  Regle("Courrier", "cuisine@localhost");
  Ouvre();
  EXPECT_EQ(Lit("lblAdresselWeb"), "https://localhost/cuisine");
  EXPECT_EQ(Lit("lblAdresseEmail"), "cuisine@localhost");
}

TEST_F(APropos, SansAdresseLesLiensMenentALaPageDePresentation) {
  EXPECT_EQ(Lit("lblAdresselWeb"), Fr("page de présentation"));
  EXPECT_EQ(Lit("lblAdresseEmail"), Fr("page de présentation, «\u00a0Contact\u00a0»"));
  Clique(Trouve(*dialogue, "lblAdresselWeb"));
  Clique(Trouve(*dialogue, "lblAdresseEmail"));
  const std::string page = "file://" + (b.dossier.chemin() / "presentation.html").string();
  EXPECT_THAT(b.association.cibles, ElementsAre(page, page + "#contact"));
}

TEST_F(APropos, UnReglageVideEnEstUnQuiManque) {
  Regle("SiteWeb", "");
  Ouvre();
  EXPECT_EQ(Lit("lblAdresselWeb"), Fr("page de présentation"));
}

TEST_F(APropos, UnClicOuvreLeSite) {
  Regle("SiteWeb", "https://localhost/cuisine");
  Clique(Trouve(*dialogue, "lblAdresselWeb"));
  EXPECT_THAT(b.association.cibles, ElementsAre("https://localhost/cuisine"));
}

TEST_F(APropos, UnClicEcritUnCourrier) {
  Regle("Courrier", "cuisine@localhost");
  Clique(Trouve(*dialogue, "lblAdresseEmail"));
  EXPECT_THAT(b.association.cibles, ElementsAre("mailto:cuisine@localhost"));
}

TEST_F(APropos, UneAutreAdresseSOuvreCommeCelleDuLien) {
  OuvreLien(*b.module, Lien::courrier, "a@b.fr");
  OuvreLien(*b.module, Lien::site, "https://b.fr");
  EXPECT_THAT(b.association.cibles, ElementsAre("mailto:a@b.fr", "https://b.fr"));
}

TEST_F(APropos, LeBoutonDroitNOuvreRien) {
  QTest::mouseClick(&Trouve(*dialogue, "lblAdresselWeb"), Qt::RightButton);
  EXPECT_THAT(b.association.cibles, IsEmpty());
}

TEST_F(APropos, LesLiensSOuvrentAuClavier) {
  QWidget& site = Trouve(*dialogue, "lblAdresselWeb");
  QWidget& courrier = Trouve(*dialogue, "lblAdresseEmail");
  EXPECT_TRUE((site.focusPolicy() & Qt::TabFocus) != 0);
  QTest::keyClick(&site, Qt::Key_Return);
  QTest::keyClick(&courrier, Qt::Key_Space);
  EXPECT_THAT(b.association.cibles, testing::SizeIs(2));
  EXPECT_TRUE(dialogue->isVisible());
}

TEST_F(APropos, SansNavigateurUnMessageLeDit) {
  b.association.reponse = Ouverture::aucuneAssociation;
  Clique(Trouve(*dialogue, "lblAdresselWeb"));
  EXPECT_THAT(b.messages.vus,
              ElementsAre(MessageVu{
                  std::string("Aucune association n'est définie pour naviguer sur Internet"_1252),
                  Icone::information, "Gastrelle 2005"}));
}

TEST_F(APropos, SansCourrierUnMessageLeDit) {
  b.association.reponse = Ouverture::aucuneAssociation;
  Clique(Trouve(*dialogue, "lblAdresseEmail"));
  EXPECT_THAT(
      b.messages.vus,
      ElementsAre(MessageVu{
          std::string("Aucune association n'est définie pour le courrier sur Internet"_1252),
          Icone::information, "Gastrelle 2005"}));
}

TEST_F(APropos, ToutAutreEchecSeTait) {
  b.association.reponse = Ouverture::echec;
  Clique(Trouve(*dialogue, "lblAdresselWeb"));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(APropos, LEmblemeAUnNom) {
  EXPECT_EQ(Trouve(*dialogue, "picIcon").accessibleName(), Fr("Emblème de Gastrelle"));
}

TEST_F(APropos, OkFermeLeDialogue) {
  Clique(Trouve(*dialogue, "cmdOK"));
  EXPECT_FALSE(dialogue->isVisible());
}

TEST_F(APropos, SansOutilDuSystemeUnMessageLeDit) {
  DemandeInfos();
  EXPECT_THAT(
      b.messages.vus,
      ElementsAre(MessageVu{
          std::string("Les informations système ne sont pas disponibles pour l'instant"_1252),
          Icone::information, "Gastrelle 2005"}));
}

TEST_F(APropos, LOutilDuSystemeEstLance) {
  InstalleOutil("hardinfo");
  DemandeInfos();
  EXPECT_EQ(Arguments("hardinfo"), "");
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(APropos, LePremierOutilTrouveEstLanceAvecSaPage) {
  InstalleOutil("hardinfo");
  InstalleOutil("gnome-control-center");
  DemandeInfos();
  EXPECT_EQ(Arguments("gnome-control-center"), "info-overview");
  EXPECT_FALSE(std::filesystem::exists(Temoin("hardinfo")));
}

}  // namespace
}  // namespace gastrelle::essai
