"""lejis doctor: a library that is not registered as it should be."""
import unittest

from doctor_case import DoctorCase
from lejis_case import DONE, REFUSED
from registration import (BITS, BUILT, OTHER_BITS, class_key, reg, register_copy, regsvr32, turn_into_other_bitness,
                          windows_path)

OWN, OTHER = f"{BITS}-bit library", f"{OTHER_BITS}-bit library"
OWN_CLASSES, OTHER_CLASSES = f"{BITS}-bit classes", f"{OTHER_BITS}-bit classes"
SERVER = r"\InprocServer32"


class OwnRegistrationTest(DoctorCase):
    def test_a_file_that_is_gone(self):
        copy = register_copy(self)
        copy.unlink()
        found = self.findings(REFUSED)
        self.expect_failure(found, OWN,
                            r"^registered, but there is no file Z:\\.*\\TVLejisCore.dll\nInstall or register")
        # One cause is told once.
        self.assertEqual(found["Library in use"][0], "skipped")
        self.assertNotIn(OWN_CLASSES, found)

    def test_a_file_that_is_no_library(self):
        register_copy(self).write_text("no library", encoding="ascii")
        self.expect_failure(self.findings(REFUSED), OWN, "^registered, but this is no library: Z:")

    def test_a_library_of_the_other_bitness(self):
        turn_into_other_bitness(register_copy(self))
        self.expect_failure(self.findings(REFUSED), OWN,
                            f"^the registered library is a {OTHER_BITS}-bit one, "
                            f"which no {BITS}-bit program can load: Z:")

    def test_every_class_can_be_created(self):
        health, text = self.findings(DONE)[OWN_CLASSES]
        self.assertEqual(health, "ok")
        self.assertRegex(text, r"^all [2-9]\d can be created$")

    def test_a_class_that_is_missing(self):
        # Two that stand for the whole library elsewhere, and one that does not.
        for name in ("LejisVehicleIndexCard", "LejisContributingSystem", "LejisSubmissionWebService"):
            with self.subTest(name):
                self.addCleanup(regsvr32, windows_path(BUILT))
                reg("delete", class_key(name), "/f", f"/reg:{BITS}")
                self.expect_failure(self.findings(REFUSED), OWN_CLASSES,
                                    f"^{name} is not registered\nInstall or register")
                regsvr32(windows_path(BUILT))

    def test_a_class_of_another_library(self):
        copy = register_copy(self)
        reg("add", class_key("LejisStreetAddress") + SERVER, "/ve", "/d", windows_path(BUILT), "/f", f"/reg:{BITS}")
        self.assertTrue(copy.exists())
        self.expect_failure(self.findings(REFUSED), OWN_CLASSES,
                            r"^LejisStreetAddress is registered in another file than the others, Z:.*TVLejisCore.dll")


class OtherRegistrationTest(DoctorCase):
    def setUp(self):
        super().setUp()
        health, text = self.findings(DONE)[OTHER]
        self.registered = text.rpartition(", ")[2] if health == "ok" and "not registered" not in text else None
        if self.registered:
            self.addCleanup(regsvr32, self.registered)

    def register_in_other_view(self, file):
        key = class_key("LejisSubmissionWebService")
        if not self.registered:
            self.addCleanup(reg, "delete", key, "/f", f"/reg:{OTHER_BITS}")
        reg("add", key + SERVER, "/ve", "/d", file, "/f", f"/reg:{OTHER_BITS}")

    def test_a_library_of_this_bitness(self):
        self.register_in_other_view(windows_path(BUILT))
        self.expect_failure(self.findings(REFUSED), OTHER,
                            f"^the registered library is a {BITS}-bit one, "
                            f"which no {OTHER_BITS}-bit program can load: Z:")

    def test_a_file_that_is_gone(self):
        self.register_in_other_view(r"C:\nowhere\TVLejisCore.dll")
        self.expect_failure(self.findings(REFUSED), OTHER,
                            r"^registered, but there is no file C:\\nowhere\\TVLejisCore.dll\n")

    def test_its_classes_are_looked_up(self):
        if not self.registered:
            self.skipTest("only one bitness is registered")
        self.assertRegex(self.findings(DONE)[OTHER_CLASSES][1], r"^all [2-9]\d are registered$")
        reg("delete", class_key("LejisVehicleIndexCard"), "/f", f"/reg:{OTHER_BITS}")
        self.expect_failure(self.findings(REFUSED), OTHER_CLASSES, "^LejisVehicleIndexCard is not registered\n")

    @unittest.skipIf(BITS == 32, "looks at what a 64-bit registration alone means")
    def test_a_suite_of_32_bits_finds_no_library_where_only_64_bits_are_registered(self):
        if self.registered:
            regsvr32("/u", self.registered)
        health, text = self.findings(DONE)[OTHER]
        self.assertEqual(health, "warning")
        self.assertRegex(text, "^not registered, though the 64-bit one is: the suite is a 32-bit program and finds no "
                               "library\nInstall the x86 package")


if __name__ == "__main__":
    unittest.main()
