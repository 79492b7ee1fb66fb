"""Which LEJIS a package is made for."""

# What the sources say, and what gets another name in the packages of another.
DEFAULT_LEJIS_HOST = "lejis.example"
MADE_FOR = "made for the LEJIS host `{}`"
