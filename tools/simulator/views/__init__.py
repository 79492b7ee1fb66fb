"""What people read, made from what goes over the wire."""
