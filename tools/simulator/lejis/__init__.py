"""What the LEJIS Interface says and keeps: its names, messages, schemas and index."""
