"""What answers at each address."""
