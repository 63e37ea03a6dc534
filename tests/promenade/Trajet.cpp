#include "promenade/Trajet.h"

#include <utility>

#include <QAbstractItemView>
#include <QTabBar>

#include "promenade/Gestes.h"
#include "promenade/Images.h"

namespace gastrelle::essai {
namespace {

QWidget* Lieu(const QString& fenetre) {
  return fenetre.isEmpty() ? DialogueVu() : EnfantVu(fenetre);
}

Trajet::Condition Utilisable(const QString& fenetre, const QString& controle) {
  return [=] { return EstUtilisable(Cherche(Lieu(fenetre), controle)); };
}

QString Nomme(const QString& fenetre, const QString& verbe, const QString& controle) {
  return fenetre.isEmpty() ? verbe + u' ' + controle
                           : QStringLiteral("%1 : %2 %3").arg(fenetre, verbe, controle);
}

}  // namespace

void Trajet::Attend(const QString& nom, Condition prete) {
  Fait(nom, std::move(prete), {});
}

void Trajet::Fait(const QString& nom, Condition prete, Geste geste) {
  etapes_.push_back({nom, profondeur_, false, std::move(prete), std::move(geste)});
}

void Trajet::FaitSIlLeFaut(const QString& nom, Condition prete, Geste geste) {
  etapes_.push_back({nom, profondeur_ + 1, true, std::move(prete), std::move(geste)});
}

void Trajet::DansUnDialogue(const std::function<void()>& dedans) {
  ++profondeur_;
  dedans();
  --profondeur_;
}

void Trajet::Clique(const QString& fenetre, const QString& bouton) {
  Fait(Nomme(fenetre, QStringLiteral("presse"), bouton), Utilisable(fenetre, bouton),
       [=] { essai::Clique(Trouve(Lieu(fenetre), bouton)); });
}

void Trajet::Coche(const QString& fenetre, const QString& option) {
  Fait(Nomme(fenetre, QStringLiteral("coche"), option), Utilisable(fenetre, option),
       [=] { essai::Coche(Trouve(Lieu(fenetre), option)); });
}

void Trajet::Tape(const QString& fenetre, const QString& boite, const QString& texte) {
  Fait(Nomme(fenetre, QStringLiteral("tape dans"), boite), Utilisable(fenetre, boite),
       [=] { essai::Tape(Trouve(Lieu(fenetre), boite), texte); });
}

void Trajet::Remplace(const QString& fenetre, const QString& boite, const QString& texte) {
  Fait(Nomme(fenetre, QStringLiteral("remplace"), boite), Utilisable(fenetre, boite), [=] {
    QWidget& voulue = Trouve(Lieu(fenetre), boite);
    essai::Clique(voulue);
    essai::Remplace(voulue, texte);
  });
}

void Trajet::VaALOnglet(const QString& fenetre, int onglet) {
  const QString nom = QStringLiteral("%1 : onglet %2").arg(fenetre).arg(onglet);
  Fait(nom, Utilisable(fenetre, QStringLiteral("TabStrip1")),
       [=] { CliqueOnglet(EnfantVu(fenetre), onglet); });
  Attend(nom + QStringLiteral(" à l'écran"), [=] {
    const QWidget* enfant = EnfantVu(fenetre);
    const auto* onglets = Cherche<QTabBar>(enfant, QStringLiteral("TabStrip1"));
    return onglets != nullptr && onglets->currentIndex() == onglet - 1 &&
           EstUtilisable(Cherche(enfant, QStringLiteral("Frame1(%1)").arg(onglet)));
  });
}

void Trajet::Choisit(const QString& fenetre, const QString& liste, const QString& lettres,
                     const QString& attendu) {
  const auto combo = [=]() -> QComboBox& { return Trouve<QComboBox>(Lieu(fenetre), liste); };
  Fait(Nomme(fenetre, QStringLiteral("ouvre"), liste), Utilisable(fenetre, liste),
       [=] { essai::Clique(combo()); });
  Fait(
      Nomme(fenetre, QStringLiteral("cherche dans"), liste),
      [=] { return combo().view()->isVisible(); },
      [=] {
        essai::Tape(*combo().view(), lettres);
        Frappe(*combo().view(), Qt::Key_Return);
      });
  Attend(Nomme(fenetre, QStringLiteral("choisit « %1 » dans").arg(attendu), liste),
         [=] { return !combo().view()->isVisible() && combo().currentText() == attendu; });
}

void Trajet::Commande(const QString& menu, const QString& sousMenu, const QString& entree) {
  Fait(
      QStringLiteral("déroule ") + menu, [] { return DialogueVu() == nullptr; },
      [=] { DerouleMenu(menu); });
  if (!sousMenu.isEmpty()) {
    Fait(
        QStringLiteral("déroule ") + sousMenu, [=] { return EstDeroule(menu); },
        [=] { DerouleSousMenu(menu, sousMenu); });
  }
  const QString dernier = sousMenu.isEmpty() ? menu : sousMenu;
  Fait(
      QStringLiteral("choisit ") + entree, [=] { return EstDeroule(dernier); },
      [=] { ChoisitEntree(dernier, entree); });
}

void Trajet::Repond(const QString& debut, const QString& bouton) {
  DansUnDialogue([&] {
    Fait(
        QStringLiteral("répond « %1 » à « %2 »").arg(bouton, debut),
        [=] { return MessageVu() != nullptr && MessageVu()->text().startsWith(debut); },
        [=] { essai::Repond(bouton); });
  });
}

void Trajet::Photographie(const QString& nom) {
  if (ImagesVoulues()) {
    Fait(QStringLiteral("image ") + nom, {}, [=] { PrendImage(nom); });
  }
}

}  // namespace gastrelle::essai
