#include "data/Collation.h"

#include <algorithm>
#include <array>
#include <memory>
#include <span>

#include "data/TableCaracteres.h"

namespace gastrelle {
namespace {

/// What a byte is worth in the order: one or two base letters in lower case, then the accent.
struct Poids {
  char base = 0;
  char seconde = 0;  // the e of œ and of æ, the s of ß
  char accent = 0;
};

struct Famille {
  char base;
  const char16_t* lettres;  // in the order of their accents
};

constexpr std::array<Famille, 10> familles{{
    {'a', u"àáâãäå"},
    {'c', u"ç"},
    {'e', u"èéêë"},
    {'i', u"ìíîï"},
    {'n', u"ñ"},
    {'o', u"òóôõöø"},
    {'s', u"š"},
    {'u', u"ùúûü"},
    {'y', u"ýÿ"},
    {'z', u"ž"},
}};

constexpr std::array<Poids, 256> poids = [] {
  std::array<Poids, 256> table{};
  for (unsigned i = 0; i < table.size(); ++i) {
    const bool capitale = i >= 'A' && i <= 'Z';
    table[i].base = static_cast<char>(capitale ? i + 0x20 : i);
  }
  const auto pose = [&](char16_t minuscule, Poids valeur) {
    const auto octet = static_cast<unsigned>(OctetDe(minuscule));
    table[octet] = valeur;
    table[static_cast<unsigned char>(capitale1252[octet])] = valeur;
  };
  for (const Famille& famille : familles) {
    char rang = 1;
    for (const char16_t* lettre = famille.lettres; *lettre != 0; ++lettre) {
      pose(*lettre, {famille.base, 0, rang++});
    }
  }
  pose(u'œ', {'o', 'e', 1});
  pose(u'æ', {'a', 'e', 1});
  table[0xDF] = {'s', 's', 1};  // ß, which has no capital here
  table[0xA0] = {' ', 0, 1};    // the no-break space beside the blank
  return table;
}();

const Poids& PoidsDe(char c) {
  return poids[static_cast<unsigned char>(c)];
}

/// Longest key of a text of that length.
constexpr std::size_t LongueurCle(std::size_t longueur) {
  return 3 * longueur + 1;
}

/// Writes the key of a text: its base letters, then, if it has accents, a zero byte and the accents
/// up to the last one. Byte order of keys is list order. Returns the end of the key.
char* EcritCle(char* place, std::string_view texte) {
  std::size_t accents = 0;
  for (std::size_t i = 0; i < texte.size(); ++i) {
    const Poids& p = PoidsDe(texte[i]);
    *place++ = p.base;
    if (p.seconde != 0) {
      *place++ = p.seconde;
    }
    accents = p.accent != 0 ? i + 1 : accents;
  }
  if (accents > 0) {
    *place++ = '\0';
    for (std::size_t i = 0; i < accents; ++i) {
      *place++ = PoidsDe(texte[i]).accent;
    }
  }
  return place;
}

std::string Cle(std::string_view texte) {
  std::string cle(LongueurCle(texte.size()), '\0');
  cle.resize(static_cast<std::size_t>(EcritCle(cle.data(), texte) - cle.data()));
  return cle;
}

/// An entry of the list while it is sorted: its key, and eight bytes of it as a number, so that
/// most comparisons touch no text.
struct Rang {
  std::uint64_t tranche;
  const char* cle;
  std::uint32_t longueur;
  std::uint32_t indice;
};

/// The eight bytes of a key from `depuis` on; a key that ends before reads as zeros.
std::uint64_t Tranche(const Rang& rang, std::size_t depuis) {
  std::uint64_t tranche = 0;
  for (std::size_t i = depuis; i < depuis + sizeof tranche; ++i) {
    tranche = (tranche << 8U) | (i < rang.longueur ? static_cast<unsigned char>(rang.cle[i]) : 0U);
  }
  return tranche;
}

/// Sorts by the eight bytes from `depuis` on, then each run of equal ones by the next eight.
void TrieRangs(std::span<Rang> rangs, std::size_t depuis) {
  const bool epuises =
      std::all_of(rangs.begin(), rangs.end(), [&](const Rang& r) { return r.longueur <= depuis; });
  if (epuises) {
    std::sort(rangs.begin(), rangs.end(), [](const Rang& a, const Rang& b) {
      return a.longueur != b.longueur ? a.longueur < b.longueur : a.indice < b.indice;
    });
    return;
  }
  for (Rang& rang : rangs) {
    rang.tranche = Tranche(rang, depuis);
  }
  std::sort(rangs.begin(), rangs.end(),
            [](const Rang& a, const Rang& b) { return a.tranche < b.tranche; });
  for (std::size_t debut = 0; debut < rangs.size();) {
    std::size_t fin = debut + 1;
    while (fin < rangs.size() && rangs[fin].tranche == rangs[debut].tranche) {
      ++fin;
    }
    if (fin - debut > 1) {
      TrieRangs(rangs.subspan(debut, fin - debut), depuis + sizeof(std::uint64_t));
    }
    debut = fin;
  }
}

}  // namespace

int CompareFrancais(std::string_view gauche, std::string_view droite) {
  return Cle(gauche).compare(Cle(droite));
}

void TrieFrancais(Liste& liste) {
  std::size_t longueur = 0;
  for (const EntreeListe& entree : liste) {
    longueur += LongueurCle(entree.texte.size());
  }
  const auto cles = std::make_unique_for_overwrite<char[]>(longueur);
  std::vector<Rang> rangs;
  rangs.reserve(liste.size());
  char* place = cles.get();
  for (const EntreeListe& entree : liste) {
    const char* debut = place;
    place = EcritCle(place, entree.texte);
    rangs.push_back({0, debut, static_cast<std::uint32_t>(place - debut),
                     static_cast<std::uint32_t>(rangs.size())});
  }
  TrieRangs(rangs, 0);
  Liste triee;
  triee.reserve(liste.size());
  for (const Rang& r : rangs) {
    triee.push_back(std::move(liste[r.indice]));
  }
  liste = std::move(triee);
}

std::size_t PlaceFrancaise(const Liste& liste, std::size_t depuis, std::string_view texte) {
  const auto debut = liste.begin() + static_cast<std::ptrdiff_t>(depuis);
  const auto place = std::upper_bound(debut, liste.end(), texte,
                                      [](std::string_view nouveau, const EntreeListe& entree) {
                                        return CompareFrancais(nouveau, entree.texte) < 0;
                                      });
  return static_cast<std::size_t>(place - liste.begin());
}

}  // namespace gastrelle
