#include "maintenance/frmSauvegarde.h"

#include <QTimer>
#include <QVBoxLayout>

#include "controles/BoitesTexte.h"
#include "controles/Boutons.h"
#include "controles/Conversion.h"
#include "controles/Touches.h"
#include "maintenance/Sauvegarde.h"

namespace gastrelle {
namespace {

constexpr int marge = 20;
constexpr int largeurChemin = 360;

/// The folder of the copy as it is shown: in lower case, whatever its own.
std::string CheminAffiche(const Module1& module) {
  return DepuisQt(VersQt(module.chemins.De(dossierSauvegarde)).toLower());
}

}  // namespace

frmSauvegarde::frmSauvegarde(Module1& module, QWidget* parent)
    : QDialog(parent),
      module_(module),
      lblTache_(new QLabel(QStringLiteral("en cours..."), this)),
      cmdOk_(Bouton(QStringLiteral("cmdOk"), QStringLiteral("&OK"), {}, {}, this)) {
  setObjectName(QStringLiteral("frmSauvegarde"));
  setWindowTitle(VersQt(titreApplication));
  setProperty(proprieteSujet, QStringLiteral("cadre"));
  setModal(true);
  auto* txtChemin = new LigneTexte(QStringLiteral("txtChemin"), sansLimite, this);
  txtChemin->RendLectureSeule();
  txtChemin->PoseTexte(CheminAffiche(module));
  txtChemin->setMinimumWidth(largeurChemin);
  lblTache_->setObjectName(QStringLiteral("lblTache"));
  auto* legende = new QLabel(QStringLiteral("dans le dossier :"), this);
  legende->setBuddy(txtChemin);
  txtChemin->setAccessibleName(legende->text());

  QSizePolicy reservee = cmdOk_->sizePolicy();
  reservee.setRetainSizeWhenHidden(true);
  cmdOk_->setSizePolicy(reservee);
  cmdOk_->setDefault(true);
  cmdOk_->hide();
  connect(cmdOk_, &QPushButton::clicked, this, &QDialog::accept);

  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(marge, marge, marge, marge);
  page->addWidget(new QLabel(QStringLiteral("Copie de sécurité des fichiers de données"), this));
  page->addWidget(legende);
  page->addWidget(txtChemin);
  page->addWidget(lblTache_);
  page->addSpacing(marge / 2);
  page->addWidget(cmdOk_, 0, Qt::AlignRight);
}

void frmSauvegarde::reject() {
  if (etape_ == Etape::finie) {
    QDialog::reject();
  }
}

void frmSauvegarde::showEvent(QShowEvent* evenement) {
  constexpr int auPlusTard = 500;
  QDialog::showEvent(evenement);
  CopieDans(auPlusTard);
}

void frmSauvegarde::paintEvent(QPaintEvent* evenement) {
  QDialog::paintEvent(evenement);
  CopieDans(0);
}

void frmSauvegarde::CopieDans(int millisecondes) {
  if (etape_ == Etape::attente) {
    QTimer::singleShot(millisecondes, this, &frmSauvegarde::Copie);
  }
}

void frmSauvegarde::Copie() {
  if (etape_ != Etape::attente) {
    return;
  }
  etape_ = Etape::enCours;
  module_.services.pointeur.Sablier();
  const bool reussie = CopieSecurite(module_);
  // What was typed meanwhile comes first, and meets a dialog that can't be left yet.
  QTimer::singleShot(0, this, [this, reussie] { Conclut(reussie); });
}

void frmSauvegarde::Conclut(bool reussie) {
  etape_ = Etape::finie;
  module_.services.pointeur.Normal();
  if (!reussie) {
    reject();
    return;
  }
  lblTache_->setText(QStringLiteral("effectuée avec succès"));
  cmdOk_->show();
  cmdOk_->setFocus(Qt::OtherFocusReason);
}

}  // namespace gastrelle
