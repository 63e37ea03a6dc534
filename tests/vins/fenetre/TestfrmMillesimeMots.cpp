// The words of the vintage chart: tabs, headings, captions, tooltips, help topics.

#include "doublures/Mots.h"
#include "vins/MillesimesEssai.h"
#include "vins/frmMillesime.h"

namespace gastrelle::essai {
namespace {

class MotsMillesimes : public Mots<frmMillesime> {
 protected:
  MotsMillesimes() { b.GarnitMillesimes(); }

  /// The labels of that name, from an index on.
  QStringList Etiquettes(const QString& nom, int premiere, int combien) {
    QStringList textes;
    for (int i = premiere; i < premiere + combien; ++i) {
      textes << Texte(Le(QStringLiteral("%1(%2)").arg(nom).arg(i).toUtf8().constData()));
    }
    return textes;
  }
};

TEST_F(MotsMillesimes, Onglets) {
  OuvreEtParcourt();
  AttendPages("Les millésimes des vins",
              {{"Liste", "Les millésimes mémorisés", "Liste des millésimes mémorisés",
                "Bonne dégustation !", "millesimes-liste"},
               {"Ajouter", "Ajouter un millésime", "Ajout d'un millésime",
                "Vous ajoutez un millésime à la base de données", "millesimes-ajouter"},
               {"Modifier", "Modifier un millésime", "Modification d'un millésime",
                "Vous modifiez le millésime sélectionné", "millesimes-modifier"}});
}

TEST_F(MotsMillesimes, LaBandeDuLogo) {
  OuvreEtParcourt();
  AttendLogos();
  EXPECT_EQ(LignesDuLogo(), QStringList());
}

TEST_F(MotsMillesimes, LesDeuxPagesDeClassementNommentCrusEtDegres) {
  OuvreEtParcourt();
  const QStringList lesCrus{"Bordeaux rouges",
                            "Bordeaux blancs",
                            "Bourgognes rouges",
                            "Bourgognes blancs",
                            Fr("Crus des Côtes du Rhône"),
                            "Alsace",
                            "Pouilly sur Loire / Sancerre",
                            "Anjou / Touraine / Muscadet",
                            "Crus du Beaujolais"};
  const QStringList lesDegres{Fr("Petite année"), Fr("Année moyenne"), Fr("Bonne année"),
                              Fr("Grande année"), "Exceptionnel",      Fr("Non classé")};
  for (const int page : {0, 1}) {
    EXPECT_EQ(Etiquettes("lblCru", 9 * page, 9), lesCrus);
    EXPECT_EQ(Etiquettes("lblClassement", 6 * page, 6), lesDegres);
  }
}

TEST_F(MotsMillesimes, LegendesEtInfobulles) {
  OuvreEtParcourt();
  AttendControles(
      {{"ComboCru", "Le vignoble", ""},
       {"MSFlexGrid2", "Ses millésimes", "Sélectionner une année pour modifier son classement"},
       {"OptionBordeauxRouges(5)", "Les vignobles", ""}});
}

TEST_F(MotsMillesimes, Boutons) {
  OuvreEtParcourt();
  AttendInfobulles({{"cmdValideAjouter", "Valider les classements"},
                    {"cmdValideModifier", "Valider les classements"},
                    {"cmdEffacerModifier", "Réinitialiser"},
                    {"cmdAideListe", "Aide"},
                    {"cmdAideAjouter", "Aide"},
                    {"cmdAideModifier", "Aide"}});
}

}  // namespace
}  // namespace gastrelle::essai
