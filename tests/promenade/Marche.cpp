#include "promenade/Marche.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <utility>

#include <QCoreApplication>
#include <QTimer>

#include "promenade/Gestes.h"
#include "promenade/Images.h"

namespace gastrelle::essai {
namespace {

constexpr int souffle = 5;  // milliseconds from one look to the next
constexpr int abandon = 3;  // status of the process

/// Milliseconds that a step may take.
int Patience() {
  constexpr int deQuoiAttendre = 30'000;
  bool dite = false;
  const int voulue = qEnvironmentVariableIntValue("PROMENADE_PATIENCE", &dite);
  return dite ? voulue : deQuoiAttendre;
}

QString CeQuiEstALEcran() {
  if (const QMessageBox* message = MessageVu()) {
    return QStringLiteral("le message « %1 »").arg(message->text().simplified());
  }
  if (const QWidget* dialogue = DialogueVu()) {
    return QStringLiteral("le dialogue ") + dialogue->objectName();
  }
  return FenetreVue(QStringLiteral("frmMain")) == nullptr ? QStringLiteral("rien")
                                                          : QStringLiteral("le cadre");
}

}  // namespace

Marche::Marche(Trajet trajet)
    : trajet_(std::move(trajet)),
      patience_(Patience()),
      journal_(qEnvironmentVariable("PROMENADE_JOURNAL")) {
  if (!journal_.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
    Abandonne(QStringLiteral("PROMENADE_JOURNAL ne nomme pas de fichier qui s'écrive"));
  }
  Dit(QStringLiteral("%1 étapes").arg(trajet_.etapes().size()));
  connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] {
    if (suivante_ < trajet_.etapes().size()) {
      Abandonne(QStringLiteral("le programme finit avant la promenade"));
    }
    Dit(QStringLiteral("fin"));
  });
  attente_.start();
  Reprend();
}

void Marche::Reprend() {
  QTimer::singleShot(souffle, this, [this] { Avance(); });
}

void Marche::Avance() {
  // Before the gesture: the dialog that it opens has the next steps inside.
  Reprend();
  if (suivante_ == trajet_.etapes().size()) {
    Patiente();
    return;
  }
  try {
    const Etape& etape = trajet_.etapes()[suivante_];
    const bool sansObjet = etape.facultative && enCours_ < etape.profondeur;
    if (!sansObjet && !EstPrete(etape)) {
      Patiente();
      return;
    }
    Dit(QStringLiteral("%1/%2 %3%4")
            .arg(suivante_ + 1)
            .arg(trajet_.etapes().size())
            .arg(etape.nom, sansObjet ? QStringLiteral(" (sans objet)") : QString()));
    ++suivante_;
    attente_.restart();
    if (!sansObjet) {
      Execute(etape);
    }
  } catch (const std::exception& erreur) {
    Abandonne(QString::fromUtf8(erreur.what()));
  }
}

bool Marche::EstPrete(const Etape& etape) {
  manque_.clear();
  try {
    return enCours_ == etape.profondeur && (!etape.prete || etape.prete());
  } catch (const GesteImpossible& erreur) {
    manque_ = QStringLiteral(" (%1)").arg(QString::fromUtf8(erreur.what()));
    return false;
  }
}

void Marche::Execute(const Etape& etape) {
  if (etape.geste) {
    ++enCours_;
    etape.geste();
    --enCours_;
  }
}

void Marche::Patiente() {
  if (attente_.hasExpired(patience_)) {
    Abandonne(QStringLiteral("rien ne vient, à l'écran il y a ") + CeQuiEstALEcran() + manque_);
  }
}

void Marche::Dit(const QString& ligne) {
  journal_.write(ligne.toUtf8() + '\n');
  journal_.flush();
}

QString Marche::NomDeLEtape() const {
  return suivante_ < trajet_.etapes().size() ? trajet_.etapes()[suivante_].nom
                                             : QStringLiteral("la fin du programme");
}

void Marche::Abandonne(const QString& pourquoi) {
  const QString ligne = QStringLiteral("ABANDON avant « %1 » : %2").arg(NomDeLEtape(), pourquoi);
  Dit(ligne);
  static_cast<void>(std::fprintf(stderr, "%s\n", qUtf8Printable(ligne)));
  if (ImagesVoulues()) {
    PrendImage(QStringLiteral("abandon"));
  }
  std::_Exit(abandon);
}

}  // namespace gastrelle::essai
