"""HTTP as the simulator speaks it, down to the bytes."""
