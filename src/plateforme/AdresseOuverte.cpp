#include "plateforme/AdresseOuverte.h"

#include <algorithm>

namespace gastrelle {
namespace {

bool EstLettre(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool EstChiffre(char c) {
  return c >= '0' && c <= '9';
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
