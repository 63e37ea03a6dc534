// What the walk does with the recipes.

#include <QTabBar>

#include "promenade/Gestes.h"
#include "promenade/Parcours.h"

namespace gastrelle::essai {
namespace {

const QString recettes = QStringLiteral("frmRecettes");
const QString familleChoisie = QStringLiteral("Œufs");
const QString titreAjoute = QStringLiteral("Œufs brouillés à la crème d'Isigny");
const QString titreChange = QStringLiteral("Œufs brouillés à la crème et à la ciboulette");
const QString texteAjoute = QStringLiteral(
    "Pour 4 personnes – préparation\u00A0: 10 minutes\n\n"
    "6 œufs bien frais\n"
    "25 cl de crème (2,50\u00A0€ le pot)\n"
    "sel, poivre «\u00A0du moulin\u00A0»\n\n"
    "Battez les œufs à la fourchette…");
const QString suite = QStringLiteral("\nParsemez de ciboulette ciselée.\nServez aussitôt\u00A0!");
const QString imageChoisie = QStringLiteral("asperges.jpg");
const QString titrePasse = QStringLiteral("À oublier aussitôt");
const QString familleAjoutee = QStringLiteral("Goûters d'été");

/// The recipe on display, with its text and the end of its picture's path.
bool EstAffichee(const QString& titre, const QString& texte, const QString& image) {
  const QWidget* fenetre = EnfantVu(recettes);
  const auto* bande = Cherche<QTabBar>(fenetre, QStringLiteral("TabStrip1"));
  return bande != nullptr && bande->currentIndex() == 0 &&
         Lu(Trouve(fenetre, QStringLiteral("ComboFamilles"))) == familleChoisie &&
         Lu(Trouve(fenetre, QStringLiteral("ComboRecettes"))) == titre &&
         Lu(Trouve(fenetre, QStringLiteral("txtRecette"))) == texte &&
         Trouve(fenetre, QStringLiteral("lblLaRecette"))
             .property("Tag")
             .toString()
             .endsWith(image, Qt::CaseInsensitive);
}

void ChoisitImage(Trajet& trajet) {
  trajet.Clique(recettes, QStringLiteral("cmdImageAjouter"));
  trajet.DansUnDialogue([&] {
    const QString saisie = QStringLiteral("fileNameEdit");
    trajet.Attend(QStringLiteral("le dialogue est ouvert"),
                  [=] { return EstUtilisable(Cherche(DialogueVu(), saisie)); });
    trajet.Photographie(QStringLiteral("choix-image"));
    // At one go: the dialog fills its list by and by, and until then keeps its button to itself.
    trajet.Fait(QStringLiteral("donne le nom de l'image"), {},
                [=] { Tape(Trouve(DialogueVu(), saisie), imageChoisie + u'\n'); });
  });
  trajet.Attend(QStringLiteral("l'image est choisie"), [] {
    return Lu(Trouve(EnfantVu(recettes), QStringLiteral("txtImageAjouter")))
        .endsWith(imageChoisie, Qt::CaseInsensitive);
  });
}

void AjouteAvecImage(Trajet& trajet) {
  trajet.VaALOnglet(recettes, 2);
  trajet.Choisit(recettes, QStringLiteral("ComboFamillesAjouter"), QStringLiteral("oeufs"),
                 familleChoisie);
  trajet.Tape(recettes, QStringLiteral("txtSaisieNomRecette"), titreAjoute);
  trajet.Tape(recettes, QStringLiteral("txtSaisieRecetteAjouter"), texteAjoute);
  ChoisitImage(trajet);
  trajet.Photographie(QStringLiteral("recette-saisie"));
  trajet.Clique(recettes, QStringLiteral("cmdValideAjouter"));
  trajet.Attend(QStringLiteral("la recette est dans sa liste"),
                [] { return EstAffichee(titreAjoute, texteAjoute, imageChoisie); });
  trajet.Photographie(QStringLiteral("recette-ajoutee"));
}

void Change(Trajet& trajet) {
  trajet.VaALOnglet(recettes, 3);
  trajet.Remplace(recettes, QStringLiteral("txtSaisieNomRecetteModifier"), titreChange);
  trajet.Remplace(recettes, QStringLiteral("txtSaisieRecetteModifier"), texteAjoute + suite);
  trajet.Clique(recettes, QStringLiteral("cmdValideModifier"));
  trajet.Attend(QStringLiteral("la recette est changée"),
                [] { return EstAffichee(titreChange, texteAjoute + suite, imageChoisie); });
}

void AjoutePuisSupprime(Trajet& trajet) {
  trajet.VaALOnglet(recettes, 2);
  trajet.Tape(recettes, QStringLiteral("txtSaisieNomRecette"), titrePasse);
  trajet.Tape(recettes, QStringLiteral("txtSaisieRecetteAjouter"), QStringLiteral("Un essai."));
  trajet.Clique(recettes, QStringLiteral("cmdValideAjouter"));
  trajet.Attend(QStringLiteral("la recette de trop est dans sa liste"),
                [] { return EstAffichee(titrePasse, QStringLiteral("Un essai."), {}); });
  trajet.VaALOnglet(recettes, 4);
  trajet.Clique(recettes, QStringLiteral("cmdSupprimer"));
  trajet.Repond(QStringLiteral("Etes-vous sûr de vouloir supprimer cette 'Recette'"),
                QStringLiteral("Oui"));
  trajet.Attend(QStringLiteral("la recette de trop est partie"), [] {
    const auto& liste = Trouve<QComboBox>(EnfantVu(recettes), QStringLiteral("ComboRecettes"));
    return EstUtilisable(&liste) && liste.findText(titrePasse) < 0 &&
           liste.findText(titreChange) >= 0;
  });
}

void AjouteFamille(Trajet& trajet) {
  trajet.VaALOnglet(recettes, 2);
  trajet.Coche(recettes, QStringLiteral("Option1(0)"));
  trajet.Tape(recettes, QStringLiteral("txtSaisieFamille"), familleAjoutee);
  trajet.Clique(recettes, QStringLiteral("cmdValideAjouter"));
  trajet.Attend(QStringLiteral("la famille est affichée"), [] {
    return EstUtilisable(Cherche(EnfantVu(recettes), QStringLiteral("ComboFamilles"))) &&
           Lu(Trouve(EnfantVu(recettes), QStringLiteral("ComboFamilles"))) == familleAjoutee;
  });
}

}  // namespace

void TientLesRecettes(Trajet& trajet) {
  AjouteAvecImage(trajet);
  Change(trajet);
  AjoutePuisSupprime(trajet);
  AjouteFamille(trajet);
  trajet.Choisit(recettes, QStringLiteral("ComboFamilles"), QStringLiteral("oeufs"),
                 familleChoisie);
  trajet.Choisit(recettes, QStringLiteral("ComboRecettes"), QStringLiteral("oeufs brouilles a la"),
                 titreChange);
  trajet.Photographie(QStringLiteral("recette-changee"));
}

}  // namespace gastrelle::essai
