"""Signed packages: made with a certificate of the tests' own, verified, and broken by one changed byte."""
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from package_case import ARCHITECTURES, PROJECT
from test_content import content

from signing import Signer

ARCHITECTURE = ARCHITECTURES[-1]
SIGNED = ("TVLejisCore.dll", "lejis.exe", "TVLejisCore.msi")
WRONG_USAGE = 64
LONGEST_PACKAGING = 300


def run(*command, timeout=120, **options):
    return subprocess.run([str(word) for word in command], capture_output=True, text=True, timeout=timeout,
                          check=False, **options)


def package(*arguments, **options):
    return run(PROJECT / "package.sh", *arguments, stdin=subprocess.DEVNULL, **options)


def setUpModule():
    """Makes signed packages of one bitness, as people do, once."""
    global folder, certificate, key
    folder = Path(tempfile.mkdtemp(prefix="signed-"))
    unittest.addModuleCleanup(shutil.rmtree, folder)
    certificate, key = folder / "certificate.pem", folder / "key.pem"
    made = run("openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=Tests of Talvex",
               "-addext", "extendedKeyUsage=codeSigning", "-keyout", key, "-out", certificate)
    assert made.returncode == 0, made
    made = package("--sign", certificate.name, key.name, "--output", "packages", ARCHITECTURE, cwd=folder,
                   timeout=LONGEST_PACKAGING)
    assert made.returncode == 0, made
    take_files(folder / "packages")


def take_files(packages):
    """Puts the files that are to be signed into the folder."""
    (archive,) = packages.glob(f"*-{ARCHITECTURE}.zip")
    for name, text in content(archive).items():
        if name in SIGNED:
            (folder / name).write_bytes(text)
    (installer,) = packages.glob("*.msi")
    shutil.copy(installer, folder / "TVLejisCore.msi")
    # What the installer brings, to be compared with what the archive holds.
    run("msiextract", "-C", folder / "installed", installer)


class SignatureTest(unittest.TestCase):
    def verify(self, path):
        return run("osslsigncode", "verify", "-CAfile", certificate, "-in", path)

    def test_dll_program_and_installer_are_signed_and_described(self):
        for name in SIGNED:
            with self.subTest(name):
                verified = self.verify(folder / name)
                self.assertEqual(verified.returncode, 0, verified)
                self.assertRegex(verified.stdout, r"Subject: /CN=Tests of Talvex")
                self.assertRegex(verified.stdout, r"Text description: Talvex Core LEJIS Support")

    def test_one_changed_byte_breaks_the_signature(self):
        for name in SIGNED:
            with self.subTest(name):
                changed = bytearray((folder / name).read_bytes())
                changed[len(changed) // 2] ^= 1
                path = folder / f"changed-{name}"
                path.write_bytes(changed)
                self.assertNotEqual(self.verify(path).returncode, 0)

    def test_the_installer_brings_the_signed_programs(self):
        for name in SIGNED[:2]:
            (installed,) = (folder / "installed").rglob(name)
            self.assertEqual(installed.read_bytes(), (folder / name).read_bytes())

    def test_another_certificate_does_not_verify(self):
        other = folder / "other.pem"
        run("openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-subj", "/CN=Somebody else", "-keyout",
            folder / "other-key.pem", "-out", other)
        verified = run("osslsigncode", "verify", "-CAfile", other, "-in", folder / SIGNED[0])
        self.assertNotEqual(verified.returncode, 0)

    def test_a_signature_that_cannot_be_made_is_an_error(self):
        path = folder / "unsigned.dll"
        shutil.copy(PROJECT / "build" / ARCHITECTURE / "bin" / "TVLejisCore.dll", path)
        # Nothing listens there.
        with self.assertRaisesRegex(RuntimeError, "unsigned.dll could not be signed"):
            Signer(certificate, key, "http://127.0.0.1:1/").sign(path)
        with self.assertRaisesRegex(RuntimeError, "unsigned.dll could not be signed"):
            Signer(key, certificate).sign(path)


class OptionTest(unittest.TestCase):
    def test_what_is_missing_is_named_before_anything_is_built(self):
        service = "http://127.0.0.1:1/"
        for arguments, said in (
                (["--sign"], "nothing: there is no such certificate or key"),
                (["--sign", certificate], "nothing: there is no such certificate or key"),
                (["--sign", certificate, "nowhere.pem"], "nowhere.pem: there is no such certificate or key"),
                (["--timestamp", service, "x64"], "--timestamp is of use with --sign alone"),
                (["--sign", certificate, key, "--timestamp"], "--timestamp needs the address of a service"),
                (["--output"], "--output needs a folder"),
                (["--sing", "x64"], "unknown option --sing")):
            with self.subTest(arguments):
                refused = package(*arguments)
                self.assertEqual(refused.returncode, WRONG_USAGE, refused)
                self.assertIn(said, re.sub(r"\s+", " ", refused.stderr))


if __name__ == "__main__":
    unittest.main()
