#include "plateforme/AdresseOuverte.h"

#include <algorithm>
#include <optional>

namespace gastrelle {
namespace {

bool EstLettre(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool EstChiffre(char c) {
  return c >= '0' && c <= '9';
}

/// The number that a hexadecimal digit stands for; nothing for any other character.
std::optional<int> Chiffre(char c) {
  constexpr std::string_view chiffres = "0123456789ABCDEF0123456789abcdef";
  constexpr int base = 16;
  const std::size_t place = chiffres.find(c);
  return place == std::string_view::npos ? std::nullopt
                                         : std::optional(static_cast<int>(place) % base);
}

bool EstControle(char c) {
  constexpr unsigned char premierVisible = 0x20;
  constexpr unsigned char efface = 0x7F;
  const auto octet = static_cast<unsigned char>(c);
  return octet < premierVisible || octet == efface;
}

}  // namespace

bool AUnSchema(std::string_view texte) {
  constexpr std::size_t plusCourt = 2;
  const std::string_view schema = texte.substr(0, texte.find(':'));
  return schema.size() >= plusCourt && schema.size() < texte.size() && EstLettre(schema.front()) &&
         std::all_of(schema.begin(), schema.end(), [](char c) {
           return EstLettre(c) || EstChiffre(c) || c == '+' || c == '-' || c == '.';
         });
}

std::string CheminDAdresse(std::string_view adresse) {
  constexpr std::string_view tete = "file://";
  constexpr int base = 16;
  if (!adresse.starts_with(tete) || !adresse.substr(tete.size()).starts_with('/')) {
    return {};
  }
  const std::string_view ecrit = adresse.substr(tete.size(), adresse.find('#') - tete.size());
  std::string chemin;
  for (std::size_t i = 0; i < ecrit.size(); ++i) {
    const bool code =
        ecrit[i] == '%' && i + 2 < ecrit.size() && Chiffre(ecrit[i + 1]) && Chiffre(ecrit[i + 2]);
    chemin +=
        code ? static_cast<char>(*Chiffre(ecrit[i + 1]) * base + *Chiffre(ecrit[i + 2])) : ecrit[i];
    i += code ? 2 : 0;
  }
  // A drive stands behind a bar that isn't part of its path.
  const bool lecteur = chemin.size() > 2 && EstLettre(chemin[1]) && chemin[2] == ':';
  return lecteur ? chemin.substr(1) : chemin;
}

std::string EnUnArgument(std::string_view adresse) {
  constexpr std::string_view interdits = " \"'\\`<>^{|}";
  constexpr std::string_view chiffres = "0123456789ABCDEF";
  constexpr unsigned base = 16;
  std::string ecrite;
  for (const char c : adresse) {
    if (EstControle(c) || interdits.find(c) != std::string_view::npos) {
      const auto octet = static_cast<unsigned char>(c);
      ecrite += '%';
      ecrite += chiffres[octet / base];
      ecrite += chiffres[octet % base];
    } else {
      ecrite += c;
    }
  }
  return ecrite;
}

}  // namespace gastrelle
