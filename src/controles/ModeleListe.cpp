#include "controles/ModeleListe.h"

#include <algorithm>
#include <iterator>

#include "controles/Conversion.h"

namespace gastrelle {

int ModeleListe::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(entrees_.size());
}

QVariant ModeleListe::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) {
    return {};
  }
  const EntreeListe& entree = entrees_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return VersQt(entree.texte);
    case Qt::UserRole:
      return entree.numero;
    default:
      return {};
  }
}

void ModeleListe::Epingle(std::string_view texte) {
  const auto place = static_cast<int>(epinglees_);
  beginInsertRows({}, place, place);
  entrees_.insert(entrees_.begin() + place, EntreeListe{std::string(texte), 0});
  ++epinglees_;
  endInsertRows();
}

void ModeleListe::Ajoute(Liste nouvelles) {
  beginResetModel();
  const auto debut = entrees_.begin() + static_cast<std::ptrdiff_t>(epinglees_);
  // What is there stays ahead of its new equals.
  nouvelles.insert(nouvelles.begin(), std::make_move_iterator(debut),
                   std::make_move_iterator(entrees_.end()));
  entrees_.resize(epinglees_);
  if (ordre_ == Ordre::alphabetique) {
    TrieFrancais(nouvelles);
  }
  if (entrees_.empty()) {
    entrees_ = std::move(nouvelles);
  } else {
    entrees_.insert(entrees_.end(), std::make_move_iterator(nouvelles.begin()),
                    std::make_move_iterator(nouvelles.end()));
  }
  endResetModel();
}

int ModeleListe::Ajoute(const EntreeListe& entree) {
  const std::size_t place = ordre_ == Ordre::alphabetique
                                ? PlaceFrancaise(entrees_, epinglees_, entree.texte)
                                : entrees_.size();
  const auto indice = static_cast<int>(place);
  beginInsertRows({}, indice, indice);
  entrees_.insert(entrees_.begin() + indice, entree);
  endInsertRows();
  return indice;
}

void ModeleListe::Vide() {
  beginResetModel();
  entrees_.clear();
  epinglees_ = 0;
  endResetModel();
}

std::optional<int> ModeleListe::IndiceDe(std::int32_t numero) const {
  const auto trouvee =
      std::find_if(entrees_.begin() + static_cast<std::ptrdiff_t>(epinglees_), entrees_.end(),
                   [&](const EntreeListe& e) { return e.numero == numero; });
  if (trouvee == entrees_.end()) {
    return std::nullopt;
  }
  return static_cast<int>(trouvee - entrees_.begin());
}

}  // namespace gastrelle
