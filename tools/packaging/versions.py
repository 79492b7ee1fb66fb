"""The version where Windows demands four numbers: the third, the build, is not used."""


def windows_version(version):
    major, minor, revision = version.split(".")
    return f"{major}.{minor}.0.{revision}"
