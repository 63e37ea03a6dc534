#include "listes/Notes.h"

#include <algorithm>
#include <memory>

#include "data/Messages.h"
#include "data/ProceduresFichiers.h"
#include "data/Reserve.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

std::string LitTout(AccesFichiers& disque) {
  const std::unique_ptr<Fichier> fichier = disque.OuvrePourLire(std::string(fichierNotes));
  const std::int64_t longueur = fichier->Longueur();
  if (longueur > Reserve::plafond) {
    throw ErreurExecution(Panne::memoireInsuffisante);
  }
  std::string octets(static_cast<std::size_t>(longueur), ' ');
  octets.resize(fichier->Lit(0, octets));
  return octets;
}

/// Takes the first line off a text that isn't empty, with its end: CR LF, LF or CR.
std::string_view PrendLigne(std::string_view& reste) {
  const std::size_t fin = std::min(reste.find_first_of(CRLF), reste.size());
  const std::string_view ligne = reste.substr(0, fin);
  reste.remove_prefix(fin);
  reste.remove_prefix(reste.starts_with(CRLF) ? CRLF.size()
                                              : std::min<std::size_t>(1, reste.size()));
  return ligne;
}

}  // namespace

std::string LitNotes(Module1& module) {
  if (!FichierExiste(module, fichierNotes)) {
    return {};
  }
  const std::string octets = LitTout(module.services.disque);
  std::string texte;
  for (std::string_view reste = octets; !reste.empty();) {
    const std::string_view ligne = PrendLigne(reste);
    texte += texte.empty() ? std::string_view() : CRLF;
    texte += ligne;
  }
  return texte;
}

void EcritNotes(Module1& module, std::string_view texte) {
  AccesFichiers& disque = module.services.disque;
  const std::string nom(fichierNotes);
  PasseOutre([&] { disque.Supprime(nom); });
  if (texte.empty()) {
    return;
  }
  PasseOutre([&] { disque.Cree(nom)->Ecrit(0, std::string(texte) + std::string(CRLF)); });
}

}  // namespace gastrelle
