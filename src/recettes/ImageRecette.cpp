#include "recettes/ImageRecette.h"

#include <algorithm>
#include <array>
#include <string>

#include "data/Texte1252.h"

namespace gastrelle {
namespace {

constexpr std::array<std::string_view, 9> refusees{"EXE", "COM", "BAT", "DLL", "VBX",
                                                   "OCX", "DOC", "TXT", "WRI"};
constexpr std::array<std::string_view, 6> affichables{"GIF", "JPG", "BMP", "WMF", "EMF", "ICO"};

template <class Extensions>
bool Contient(const Extensions& extensions, const std::string& extension) {
  return std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

std::string Extension(std::string_view chemin, std::size_t point) {
  return Majuscules(chemin.substr(point + 1));
}

}  // namespace

GenreImage GenreDe(std::string_view chemin) {
  if (RefuseeAuChoix(chemin) || chemin.ends_with('.')) {
    return GenreImage::refuse;
  }
  return Contient(affichables, Extension(chemin, chemin.rfind('.'))) ? GenreImage::affichable
                                                                     : GenreImage::autre;
}

bool RefuseeAuChoix(std::string_view chemin) {
  const std::size_t point = chemin.rfind('.');
  return point == std::string_view::npos || Contient(refusees, Extension(chemin, point));
}

}  // namespace gastrelle
