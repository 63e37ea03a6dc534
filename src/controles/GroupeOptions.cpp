#include "controles/GroupeOptions.h"

#include <QAccessibleWidget>
#include <QHBoxLayout>

namespace gastrelle {
namespace {

constexpr int ecart = 24;

/// What assistive tools are told of a group: to the toolkit any bare widget is but a filler.
QAccessibleInterface* Accessible(const QString& /*classe*/, QObject* objet) {
  auto* groupe = dynamic_cast<GroupeOptions*>(objet);
  return groupe == nullptr ? nullptr : new QAccessibleWidget(groupe, QAccessible::Grouping);
}

void AnnonceAuxOutils() {
  [[maybe_unused]] static const bool faite = [] {
    QAccessible::installFactory(Accessible);
    return true;
  }();
}

}  // namespace

GroupeOptions::GroupeOptions(const QString& nom, const std::array<QString, 2>& titres,
                             const QString& choix, QWidget* parent)
    : QWidget(parent),
      options_{new QRadioButton(titres[0], this), new QRadioButton(titres[1], this)} {
  AnnonceAuxOutils();
  setAccessibleName(choix);
  auto* rangee = new QHBoxLayout(this);
  rangee->setContentsMargins(0, 0, 0, 0);
  rangee->setSpacing(ecart);
  for (std::size_t i = 0; i < options_.size(); ++i) {
    options_[i]->setObjectName(QStringLiteral("%1(%2)").arg(nom).arg(i));
    rangee->addWidget(options_[i]);
    connect(options_[i], &QRadioButton::toggled, this, [this] { RegleEntree(); });
  }
  rangee->addStretch(1);
  RegleEntree();
}

void GroupeOptions::RegleEntree() {
  const QRadioButton* entree = options_[options_[1]->isChecked() ? 1 : 0];
  for (QRadioButton* option : options_) {
    option->setFocusPolicy(option == entree ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

}  // namespace gastrelle
