"""Standing between a client and a real LEJIS Interface."""
