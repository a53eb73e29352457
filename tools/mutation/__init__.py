"""The parts of tools/mutate.py."""
