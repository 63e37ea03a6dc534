#include <cups/cups.h>
#include <memory>

#include "imprimante/ServeurImpression.h"

namespace gastrelle {
namespace {

constexpr int patienceMs = 3000;
constexpr double patience = patienceMs / 1000.0;

using Connexion = std::unique_ptr<http_t, decltype(&httpClose)>;
using Reponse = std::unique_ptr<ipp_t, decltype(&ippDelete)>;

}  // namespace

bool ServeurRepond() {
  RefuseMotDePasse();
  const Connexion serveur(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC,
                                       cupsEncryption(), 1, patienceMs, nullptr),
                          &httpClose);
  if (serveur == nullptr) {
    return false;
  }
  httpSetTimeout(
      serveur.get(), patience, [](http_t* /*serveur*/, void* /*rien*/) { return 0; }, nullptr);
  const Reponse reponse(cupsDoRequest(serveur.get(), ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/"),
                        &ippDelete);
  const ipp_status_t constat = cupsLastError();
  return reponse != nullptr &&
         (constat <= IPP_STATUS_OK_CONFLICTING || constat == IPP_STATUS_ERROR_NOT_FOUND);
}

void RefuseMotDePasse() {
  cupsSetPasswordCB2(
      [](const char* /*question*/, http_t* /*serveur*/, const char* /*methode*/,
         const char* /*ressource*/, void* /*rien*/) -> const char* { return nullptr; },
      nullptr);
}

}  // namespace gastrelle
