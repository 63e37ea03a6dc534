// The user's settings: where they are, and what doesn't become of them.

#include <QDir>
#include <QFile>
#include <QSettings>
#include <gtest/gtest.h>

#include "controles/Reglages.h"

namespace gastrelle::essai {
namespace {

/// The settings under another home, or with another variable.
class ReglagesAilleurs : public testing::Test {
 protected:
  ~ReglagesAilleurs() override { qputenv("XDG_CONFIG_HOME", avant_); }

  static QString Fichier() { return QSettings(QSettings::UserScope, "Gastrelle 2005").fileName(); }

 private:
  const QByteArray avant_ = qgetenv("XDG_CONFIG_HOME");
};

TEST_F(ReglagesAilleurs, SontLusEtEcritsLaOuLeToolkitLesMet) {
  Reglages().Ecrit("Essai/Cle", "valeur");
  EXPECT_EQ(QSettings(QSettings::UserScope, "Gastrelle 2005").value("Essai/Cle"), "valeur");
  EXPECT_EQ(Reglages().Texte("Essai/Cle"), "valeur");
  Reglages().Oublie("Essai/Cle");
  EXPECT_EQ(Reglages().Texte("Essai/Cle"), "");
}

TEST_F(ReglagesAilleurs, SousLeVerrouDUnAutreSeLisentMaisNeSEcriventPas) {
  Reglages().Ecrit("Essai/Cle", "valeur");
  {
    QFile verrou(Fichier() + ".lock");
    ASSERT_TRUE(verrou.open(QIODevice::WriteOnly));
    Reglages reglages;
    EXPECT_EQ(reglages.Texte("Essai/Cle"), "valeur");
    reglages.Ecrit("Essai/Cle", "autre");
    reglages.Oublie("Essai/Cle");
    ASSERT_TRUE(verrou.remove());
  }
  EXPECT_EQ(Reglages().Texte("Essai/Cle"), "valeur");
  Reglages().Oublie("Essai/Cle");
}

TEST_F(ReglagesAilleurs, UnFichierTropGrandNeSertPasMaisReste) {
  Reglages().Ecrit("Essai/Cle", "valeur");
  QFile fichier(Fichier());
  const qint64 avant = fichier.size();
  constexpr qint64 trop = 2'000'000;
  ASSERT_TRUE(fichier.resize(trop));
  EXPECT_EQ(Reglages().Texte("Essai/Cle"), "");
  Reglages().Ecrit("Essai/Cle", "autre");
  Reglages().Oublie("Essai/Cle");
  EXPECT_EQ(fichier.size(), trop);
  ASSERT_TRUE(fichier.resize(avant));
  EXPECT_EQ(Reglages().Texte("Essai/Cle"), "valeur");
  Reglages().Oublie("Essai/Cle");
}

}  // namespace
}  // namespace gastrelle::essai
