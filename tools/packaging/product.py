"""What the packages say of the product and of who makes it."""

MAKER = "Talvex"
DESCRIPTION = "Talvex Core LEJIS Support"
