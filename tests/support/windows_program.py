"""How tests start a program for Windows: [RUNNER, PROGRAM, ARGUMENT...]. A start at which Wine fails is repeated."""
from pathlib import Path

RUNNER = str(Path(__file__).resolve().parents[2] / "tools" / "wine-program.sh")
