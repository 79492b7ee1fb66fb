"""Signatures of programs and installers (Authenticode), made by osslsigncode."""
import subprocess
from pathlib import Path
from typing import NamedTuple, Optional

from product import DESCRIPTION


class Signer(NamedTuple):
    certificate: Path
    key: Path
    timestamp: Optional[str] = None  # the address of a time-stamping service

    def sign(self, path):
        """Puts the signed file in the place of the other."""
        signed = path.with_name(path.name + ".signed")
        command = ["osslsigncode", "sign", "-certs", str(self.certificate), "-key", str(self.key), "-h", "sha256",
                   "-n", DESCRIPTION]
        if self.timestamp:
            command += ["-ts", self.timestamp]
        run = subprocess.run([*command, "-in", str(path), "-out", str(signed)], capture_output=True, text=True,
                             check=False)
        if run.returncode:
            raise RuntimeError(f"{path.name} could not be signed: {run.stdout}{run.stderr}")
        signed.replace(path)
