"""Which LEJIS a package is made for."""

# The host in the sources. A package for another LEJIS puts the other host in its place.
DEFAULT_LEJIS_HOST = "lejis.example"
MADE_FOR = "made for the LEJIS host `{}`"
