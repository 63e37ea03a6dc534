#include "sortie/frmExport.h"

#include <algorithm>

#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "controles/Boutons.h"
#include "controles/Conversion.h"
#include "controles/Repeint.h"
#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"
#include "sortie/Envoi.h"
#include "sortie/Export.h"

namespace gastrelle {
namespace {

constexpr int marge = 14;
constexpr QSize tailleListe{62, 16};  ///< letters of mean width, lines
enum Colonne { nomFamille, numeroOrdre };

}  // namespace

frmExport::frmExport(Module1& module, QWidget* parent)
    : QDialog(parent),
      module_(module),
      ListView1_(new QTreeWidget(this)),
      cmdSelect_(
          Bouton(QStringLiteral("cmdSelect"), QStringLiteral("Tout &sélectionner"), {}, {}, this)),
      cmdDeselect_(Bouton(QStringLiteral("cmdDeselect"), QStringLiteral("Tout &désélectionner"), {},
                          {}, this)),
      cmdExport_(Bouton(QStringLiteral("cmdExport"), QStringLiteral("&Exporter"), {}, {}, this)),
      cmdStop_(Bouton(QStringLiteral("cmdStop"), QStringLiteral("A&nnuler"), {}, {}, this)),
      Frame1_(ComposeChoix()),
      Frame2_(ComposeEcriture()) {
  setObjectName(QStringLiteral("frmExport"));
  setWindowTitle(VersQt(titreApplication) + QStringLiteral(" - Export des recettes de cuisine"));
  setProperty(proprieteSujet, QStringLiteral("exporter"));
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(marge, marge, marge, marge);
  page->addWidget(Frame1_);
  page->addWidget(Frame2_);
  Frame2_->hide();
  Charge();
  connect(ListView1_, &QTreeWidget::itemChanged, this, [this] { RegleBoutons(); });
  CocheTout(Qt::Checked);
}

QWidget* frmExport::ComposeChoix() {
  auto* cadre = new QWidget(this);
  cadre->setObjectName(QStringLiteral("Frame1"));
  ListView1_->setObjectName(QStringLiteral("ListView1"));
  ListView1_->setHeaderLabels(
      {QStringLiteral("Les familles de recettes"), QStringLiteral("N° ordre")});
  ListView1_->setAccessibleName(ListView1_->headerItem()->text(nomFamille));
  ListView1_->setToolTip(
      QStringLiteral("Cliquez sur la case à cocher pour sélectionner/désélectionner"));
  ListView1_->setRootIsDecorated(false);
  ListView1_->setUniformRowHeights(true);
  ListView1_->setAllColumnsShowFocus(true);
  ListView1_->header()->setSectionsMovable(false);
  ListView1_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  ListView1_->installEventFilter(this);
  const QFontMetrics lettres = ListView1_->fontMetrics();
  ListView1_->setMinimumSize(tailleListe.width() * lettres.averageCharWidth(),
                             tailleListe.height() * lettres.lineSpacing());
  QPushButton* annuler =
      Bouton(QStringLiteral("cmdAnnuler"), QStringLiteral("A&nnuler"), {}, {}, this);
  cmdExport_->setDefault(true);
  connect(cmdSelect_, &QPushButton::clicked, this, [this] { CocheTout(Qt::Checked); });
  connect(cmdDeselect_, &QPushButton::clicked, this, [this] { CocheTout(Qt::Unchecked); });
  connect(cmdExport_, &QPushButton::clicked, this, [this] { Exporte(); });
  connect(annuler, &QPushButton::clicked, this, &frmExport::reject);
  auto* boutons = new QHBoxLayout;
  boutons->addWidget(cmdSelect_);
  boutons->addWidget(cmdDeselect_);
  boutons->addStretch(1);
  boutons->addWidget(cmdExport_);
  boutons->addWidget(annuler);
  boutons->addWidget(BoutonAide(QStringLiteral("cmdAide"), this));
  auto* page = new QVBoxLayout(cadre);
  page->setContentsMargins({});
  page->addWidget(ListView1_, 1);
  page->addLayout(boutons);
  return cadre;
}

QWidget* frmExport::ComposeEcriture() {
  auto* cadre = new QGroupBox(QStringLiteral("Exportation des recettes en cours..."), this);
  cadre->setObjectName(QStringLiteral("Frame2"));
  // The click waits until the writing is over, and so does the button's Escape.
  connect(cmdStop_, &QPushButton::clicked, this, &frmExport::reject);
  auto* page = new QVBoxLayout(cadre);
  page->addWidget(cmdStop_, 0, Qt::AlignCenter);
  return cadre;
}

void frmExport::Charge() {
  Garde(module_, [this] {
    constexpr int air = 6;  // above and below a family together
    const int hauteurRangee = ListView1_->fontMetrics().lineSpacing() + air;
    QList<QTreeWidgetItem*> entrees;
    for (const EntreeListe& famille : FamillesAExporter(module_)) {
      auto* entree = new QTreeWidgetItem({VersQt(famille.texte), QString::number(famille.numero)});
      entree->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                       Qt::ItemNeverHasChildren);
      entree->setCheckState(nomFamille, Qt::Unchecked);
      entree->setSizeHint(nomFamille, {0, hauteurRangee});
      entrees.append(entree);
    }
    ListView1_->addTopLevelItems(entrees);
    ListView1_->setCurrentItem(ListView1_->topLevelItem(0));
  });
}

void frmExport::CocheTout(Qt::CheckState etat) {
  {
    const QSignalBlocker muette(ListView1_);
    for (int i = 0; i < ListView1_->topLevelItemCount(); ++i) {
      ListView1_->topLevelItem(i)->setCheckState(nomFamille, etat);
    }
  }
  // A button that disables itself would pass the keyboard on to whichever is next.
  ListView1_->setFocus(Qt::OtherFocusReason);
  const bool cochees = etat == Qt::Checked;
  cmdSelect_->setEnabled(!cochees);
  cmdDeselect_->setEnabled(cochees);
  cmdExport_->setEnabled(cochees);
}

std::vector<std::int32_t> frmExport::FamillesCochees() const {
  std::vector<std::int32_t> numeros;
  for (int i = 0; i < ListView1_->topLevelItemCount(); ++i) {
    const QTreeWidgetItem& entree = *ListView1_->topLevelItem(i);
    if (entree.checkState(nomFamille) == Qt::Checked) {
      numeros.push_back(entree.text(numeroOrdre).toInt());
    }
  }
  return numeros;
}

void frmExport::RegleBoutons() {
  const auto cochees = static_cast<int>(FamillesCochees().size());
  cmdDeselect_->setEnabled(cochees > 0);
  cmdExport_->setEnabled(cochees > 0);
  cmdSelect_->setEnabled(cochees < ListView1_->topLevelItemCount());
}

void frmExport::Exporte() {
  ListView1_->setCursor(Qt::WaitCursor);
  Frame1_->hide();
  if (AccepteExport(module_)) {
    Ecrit();
  }
  enCours_ = false;
  reject();
}

void frmExport::Ecrit() {
  enCours_ = true;
  Frame2_->show();
  cmdStop_->setDefault(true);
  cmdStop_->setFocus(Qt::OtherFocusReason);
  module_.services.pointeur.Sablier();
  repaint();  // where the question stood, at once
  Repeint::Maintenant();
  const bool ecrit = EcritExport(module_, FamillesCochees(), Repeint());
  EcouleSaisies();
  module_.services.pointeur.Normal();
  if (ecrit) {
    OuvreDocument(module_, std::string(documentExport), Extension::doc);
  } else {
    AnnonceNonCree(module_, Extension::doc);
  }
}

void frmExport::reject() {
  if (!enCours_) {
    QDialog::reject();
  }
}

bool frmExport::eventFilter(QObject* vers, QEvent* evenement) {
  if (vers == ListView1_ && evenement->type() == QEvent::Resize) {
    ListView1_->setColumnWidth(nomFamille, ListView1_->width() * 4 / 5);
  }
  return QDialog::eventFilter(vers, evenement);
}

}  // namespace gastrelle
