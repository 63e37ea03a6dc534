#include "maintenance/frmProprietes.h"

#include <string>

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include "controles/Boutons.h"
#include "controles/Conversion.h"
#include "controles/Focus.h"
#include "controles/Legende.h"
#include "controles/LimiteTexte.h"
#include "controles/Repeint.h"
#include "controles/Touches.h"
#include "data/EspaceMort.h"
#include "data/ProceduresFichiers.h"
#include "maintenance/Nettoyage.h"

namespace gastrelle {
namespace {

constexpr int marge = 14;
constexpr int largeur = 480;  // at first: the caption, most folders

/// "1 234 567": a blank before every three digits.
std::string ParMilliers(std::int64_t nombre) {
  constexpr std::size_t groupe = 3;
  std::string texte = std::to_string(nombre);
  const std::size_t premierChiffre = nombre < 0 ? 1 : 0;
  for (std::size_t ou = texte.size(); ou > premierChiffre + groupe;) {
    ou -= groupe;
    texte.insert(ou, 1, ' ');
  }
  return texte;
}

}  // namespace

FrmProprietes::FrmProprietes(Module1& module, Cadre& cadre, QWidget* parent)
    : QDialog(parent),
      module_(module),
      cadre_(cadre),
      txtDossier_(Boite("txtDossier")),
      txtNombre_(Boite("txtRecette(2)")),
      txtTaille_(Boite("txtRecette(0)")),
      txtNecessaire_(Boite("txtRecette(1)")),
      txtGain_(Boite("txtGain")),
      cmdNettoyer_(
          Bouton(QStringLiteral("cmdNettoyer"), QStringLiteral("&Nettoyer"), {}, {}, this)),
      cmdAide_(BoutonAide(QStringLiteral("cmdAide"), this)),
      cmdFermer_(Bouton(QStringLiteral("cmdFermer"), QStringLiteral("&Fermer"), {}, {}, this)) {
  setObjectName(QStringLiteral("FrmProprietes"));
  setWindowTitle(VersQt(titreApplication) + QStringLiteral(" - Maintenance des fichiers"));
  setProperty(proprieteSujet, QStringLiteral("nettoyage"));
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(marge, marge, marge, marge);
  page->addWidget(Legende(QStringLiteral("Dossier (pour mémoire)"), txtDossier_));
  page->addWidget(txtDossier_);
  page->addLayout(ComposeMesures());
  page->addLayout(ComposeBoutons());
  Mesure();
  resize(sizeHint().expandedTo({largeur, 0}).boundedTo(screen()->availableSize()));
}

LigneTexte* FrmProprietes::Boite(const char* nom) {
  auto* boite = new LigneTexte(QLatin1String(nom), sansLimite, this);
  boite->RendLectureSeule();
  return boite;
}

QLayout* FrmProprietes::ComposeMesures() {
  constexpr int chiffres = 16;
  constexpr int retrait = 20;  // of the two sizes, below their heading
  auto* cadre = new QGroupBox(QStringLiteral("Recettes"), this);
  auto* grille = new QGridLayout(cadre);
  const auto ajoute = [&](const QString& texte, LigneTexte* boite, int marge) {
    boite->setAlignment(Qt::AlignRight);
    boite->setFixedWidth(chiffres * boite->fontMetrics().horizontalAdvance(u'0'));
    QLabel* legende = Legende(texte, boite);
    legende->setIndent(marge);
    const int rang = grille->rowCount();
    grille->addWidget(legende, rang, 0);
    grille->addWidget(boite, rang, 1);
  };
  ajoute(QStringLiteral("Nombre"), txtNombre_, 0);
  grille->addWidget(new QLabel(QStringLiteral("Taille en octets"), cadre), grille->rowCount(), 0);
  ajoute(QStringLiteral("actuelle"), txtTaille_, retrait);
  ajoute(QStringLiteral("après nettoyage"), txtNecessaire_, retrait);
  ajoute(QStringLiteral("Ecart"), txtGain_, 0);
  txtTaille_->setAccessibleName(QStringLiteral("Taille actuelle en octets"));
  txtNecessaire_->setAccessibleName(QStringLiteral("Taille après nettoyage en octets"));
  grille->setColumnStretch(0, 1);
  auto* rangee = new QVBoxLayout;
  rangee->addWidget(cadre);
  return rangee;
}

QLayout* FrmProprietes::ComposeBoutons() {
  connect(cmdNettoyer_, &QPushButton::clicked, this, [this] { Nettoie(); });
  connect(cmdFermer_, &QPushButton::clicked, this, &QDialog::reject);
  auto* boutons = new QHBoxLayout;
  boutons->addStretch(1);
  for (QPushButton* bouton : {cmdNettoyer_, cmdFermer_, cmdAide_}) {
    boutons->addWidget(bouton);
  }
  OrdonneClavier({cmdNettoyer_, cmdFermer_, cmdAide_});
  cmdFermer_->setDefault(true);  // a Return too many from the menu cleans nothing
  return boutons;
}

void FrmProprietes::Mesure() {
  txtDossier_->PoseTexte(module_.chemins.cheminAppli());
  Garde(module_, [this] {
    const Encombrement mesure = MesureRecettes(module_);
    txtNombre_->PoseTexte(ParMilliers(module_.bufRecette.nbActifs()));
    txtTaille_->PoseTexte(ParMilliers(mesure.taille));
    txtNecessaire_->PoseTexte(ParMilliers(mesure.necessaire));
    txtGain_->PoseTexte(ParMilliers(mesure.gain()));
    cmdNettoyer_->setEnabled(mesure.gain() != 0);
  });
}

void FrmProprietes::Nettoie() {
  module_.services.pointeur.Sablier();
  for (QPushButton* bouton : {cmdNettoyer_, cmdAide_, cmdFermer_}) {
    bouton->setEnabled(false);
  }
  repaint();
  cadre_.Decharge(EntreeVue::favoris);
  cadre_.AnnonceRecettesChangees();
  module_.services.pointeur.Sablier();  // a window that comes to the front takes it off
  Garde(module_, [this] { txtNombre_->PoseTexte(ParMilliers(NettoieRecettes(module_))); });
  EcouleSaisies();
  accept();
}

}  // namespace gastrelle
