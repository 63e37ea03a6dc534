# Puts the SHA-256 of a file behind its bytes, so that the program tells a damaged help from a whole
# one.
file(SHA256 "${source}" sceau)
file(COPY_FILE "${source}" "${cible}")
file(APPEND "${cible}" "${sceau}")
