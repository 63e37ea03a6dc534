#include "recherche/frmRechercher.h"

#include <algorithm>
#include <array>

#include <QElapsedTimer>
#include <QEvent>
#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

#include "controles/BoitesTexte.h"
#include "controles/Boutons.h"
#include "controles/Conversion.h"
#include "controles/Dessin.h"
#include "controles/FeuilleTexte.h"
#include "controles/Focus.h"
#include "controles/Legende.h"
#include "controles/Repeint.h"
#include "controles/Touches.h"
#include "data/Limites.h"
#include "data/Texte1252.h"

namespace gastrelle {

struct DescriptionRecherche {
  EntreeVue vue;
  const char* suffixe;    ///< behind the names of its controls
  const char16_t* titre;  ///< of the frame around a hit
};

namespace {

constexpr std::array<DescriptionRecherche, 3> descriptions{{
    {EntreeVue::recettes, "Recette", u"Recette"},
    {EntreeVue::menus, "Menu", u"Menu"},
    {EntreeVue::termesTrucsAstuces, "Truc", u"Termes, trucs et astuces"},
}};

const DescriptionRecherche& DescriptionDe(EntreeVue vue) {
  return *std::find_if(descriptions.begin(), descriptions.end(),
                       [&](const DescriptionRecherche& ligne) { return ligne.vue == vue; });
}

QString Nom(const char* debut, const DescriptionRecherche& description) {
  return QLatin1String(debut) + QLatin1String(description.suffixe);
}

constexpr int marge = 14;
constexpr int sensible = 50;          // milliseconds: in less nobody presses anything
constexpr int largeurSaisie = 44;     // letters of mean width
constexpr QSize tailleTexte{84, 16};  // the same, lines
constexpr int lignesAuMoins = 7;      // on a small screen

}  // namespace

frmRechercher::frmRechercher(Module1& module, FenetreEnfant& derriere, QWidget* parent)
    : QDialog(parent),
      module_(module),
      derriere_(derriere),
      description_(DescriptionDe(derriere.description().vue)),
      txtSaisie_(new LigneTexte(QStringLiteral("txtSaisie"), sansLimite, this)),
      cmdOk_(Bouton(QStringLiteral("cmdOk"), QStringLiteral("&OK"), {}, {}, this)),
      resultat_(new QGroupBox(QString::fromUtf16(description_.titre), this)),
      titre_(new LigneTexte(Nom("txtNom", description_), sansLimite, resultat_)),
      texte_(new FeuilleTexte(Nom("txtTexte", description_), sansLimite, resultat_)) {
  setObjectName(QStringLiteral("frmRechercher"));
  setWindowTitle(VersQt(titreApplication) + QStringLiteral(" - Rechercher"));
  setProperty(proprieteSujet, QStringLiteral("rechercher"));
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(marge, marge, marge, marge);
  page->addLayout(ComposeSaisie());
  page->addWidget(resultat_, 1);
  ComposeResultat();
  // What is shown of a hit comes below, without making the dialog broader.
  setMinimumWidth(sizeHint().width());
  resultat_->hide();
}

QLayout* frmRechercher::ComposeSaisie() {
  constexpr int coteImage = 40;
  auto* image = new Dessin(QStringLiteral("Image1"), QStringLiteral("rechercher"), coteImage, this);
  txtSaisie_->setMinimumWidth(largeurSaisie * fontMetrics().averageCharWidth());
  QPushButton* annuler =
      Bouton(QStringLiteral("cmdAnnuler"), QStringLiteral("&Annuler"), {}, {}, this);
  QPushButton* aide = BoutonAide(QStringLiteral("cmdAide"), this);
  aide->setText(QStringLiteral("A&ide"));
  cmdOk_->setDefault(true);
  connect(cmdOk_, &QPushButton::clicked, this, [this] { Commence(); });
  connect(annuler, &QPushButton::clicked, this, &QDialog::reject);
  saisie_ = {txtSaisie_, cmdOk_, aide, annuler, image};

  auto* colonne = new QVBoxLayout;
  colonne->addStretch(1);
  colonne->addWidget(Legende(QStringLiteral("Rechercher"), txtSaisie_));
  colonne->addWidget(txtSaisie_);
  colonne->addStretch(1);
  auto* rangee = new QHBoxLayout;
  rangee->setSpacing(marge);
  rangee->addWidget(image);
  rangee->addLayout(colonne, 1);
  auto* boutons = new QVBoxLayout;
  for (QPushButton* bouton : {cmdOk_, annuler, aide}) {
    boutons->addWidget(bouton);
  }
  rangee->addLayout(boutons);
  return rangee;
}

void frmRechercher::ComposeResultat() {
  resultat_->setObjectName(Nom("Frame", description_));
  for (QWidget* boite : {static_cast<QWidget*>(titre_), static_cast<QWidget*>(texte_)}) {
    boite->setMinimumWidth(tailleTexte.width() * fontMetrics().averageCharWidth());
  }
  titre_->RendLectureSeule();
  titre_->setAccessibleName(QStringLiteral("Titre"));
  texte_->RendLectureSeule();
  texte_->setAccessibleName(QStringLiteral("Texte"));
  texte_->setMinimumHeight(lignesAuMoins * fontMetrics().lineSpacing());
  auto* boutons = new QHBoxLayout;
  boutons->addStretch(1);
  AjouteBouton(*boutons, "cmdActiver", u"A&ctiver", u"Afficher", &frmRechercher::Active);
  AjouteBouton(*boutons, "cmdContinuer", u"C&ontinuer", u"Continuer la recherche",
               &frmRechercher::Continue);
  AjouteBouton(*boutons, "cmdAnnuler", u"&Annuler", u"Arrêter la recherche",
               &frmRechercher::reject);
  PermetResultat(false);
  auto* page = new QVBoxLayout(resultat_);
  page->addWidget(titre_);
  page->addWidget(texte_, 1);
  page->addLayout(boutons);
}

QPushButton* frmRechercher::AjouteBouton(QLayout& rangee, const char* debut, const char16_t* titre,
                                         const char16_t* infobulle,
                                         void (frmRechercher::*action)()) {
  QPushButton* bouton = Bouton(Nom(debut, description_), QString::fromUtf16(titre), {},
                               QString::fromUtf16(infobulle), resultat_);
  connect(bouton, &QPushButton::clicked, this, action);
  rangee.addWidget(bouton);
  suite_.push_back(bouton);
  return bouton;
}

void frmRechercher::PermetResultat(bool permis) {
  for (QPushButton* bouton : suite_) {
    bouton->setEnabled(permis);
  }
}

void frmRechercher::Commence() {
  RogneTexte(*txtSaisie_);
  const std::string texte = txtSaisie_->Texte();
  if (texte.empty()) {
    module_.services.messages.Bip();
    DonneFocus(txtSaisie_);
    return;
  }
  module_.services.pointeur.Sablier();
  for (QWidget* controle : saisie_) {
    controle->setEnabled(false);
  }
  recherche_.emplace(module_, CatalogueDe(description_.vue), texte);
  MontreResultat();
  Avance();
}

void frmRechercher::MontreResultat() {
  const QRect ecran = screen()->availableGeometry();
  const QSize bord = frameGeometry().size() - size();
  resultat_->show();
  const QSize voulue(0, height() + tailleTexte.height() * fontMetrics().lineSpacing());
  resize(sizeHint().expandedTo(voulue).boundedTo(ecran.size() - bord));
  // It grows downwards and to the right: all of it stays on the screen.
  const QPoint coin(ecran.right() + 1 - (width() + bord.width()),
                    ecran.bottom() + 1 - (height() + bord.height()));
  move(std::max(ecran.left(), std::min(x(), coin.x())),
       std::max(ecran.top(), std::min(y(), coin.y())));
}

template <class Etape>
void frmRechercher::Tente(Etape&& etape) {
  if (!Reussit(etape)) {
    module_.erreurFatale = true;
    enCours_ = false;
    reject();
  }
}

void frmRechercher::Avance() {
  cmdOk_->setDefault(false);  // a button that loses the keyboard gives the role back
  Tente([this] {
    enCours_ = true;
    QElapsedTimer duree;
    duree.start();
    // A hit that is found at once is shown without an empty frame before it.
    const std::optional<Occurrence> occurrence = recherche_->Suivante(Repeint());
    if (duree.hasExpired(sensible)) {
      EcouleSaisies();
    }
    enCours_ = false;
    if (occurrence) {
      Montre(*occurrence);
    } else {
      module_.services.pointeur.Normal();
      Finit();
    }
  });
}

void frmRechercher::Montre(const Occurrence& occurrence) {
  numero_ = occurrence.numero;
  titre_->PoseTexte(occurrence.titre);
  if (!Reussit([&] { texte_->PoseTexte(occurrence.texte); })) {
    // More than a box can hold: as much as the window behind shows.
    texte_->PoseTexte(occurrence.texte.substr(0, limiteTexte));
  }
  PermetResultat(true);
  module_.services.pointeur.Normal();
  DonneFocus(occurrence.dansTitre ? static_cast<QWidget*>(titre_) : texte_);
}

void frmRechercher::Continue() {
  Tente([this] {
    if (recherche_->EstFinie()) {
      Finit();
      return;
    }
    module_.services.pointeur.Sablier();
    titre_->PoseTexte({});
    texte_->PoseTexte({});
    PermetResultat(false);
    Avance();
  });
}

void frmRechercher::Finit() {
  module_.services.messages.Informe(recherche_->MessageDeFin(), Icone::information);
  reject();
}

void frmRechercher::reject() {
  if (!enCours_) {
    QDialog::reject();
  }
}

void frmRechercher::Active() {
  module_.services.pointeur.Sablier();
  Tente([this] {
    derriere_.MontreEnregistrement(numero_);
    module_.services.pointeur.Normal();
    accept();
  });
}

bool frmRechercher::event(QEvent* evenement) {
  if (evenement->type() == QEvent::WindowActivate) {
    module_.services.pointeur.Normal();
  }
  return QDialog::event(evenement);
}

}  // namespace gastrelle
