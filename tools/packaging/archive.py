"""Zip archives that depend on nothing but the files in them."""
import time
import zipfile


def write(path, members, timestamp):
    """members: the content by its name in the archive."""
    moment = time.gmtime(timestamp)[:6]
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for name in sorted(members):
            entry = zipfile.ZipInfo(name, moment)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = 0o644 << 16
            archive.writestr(entry, members[name])
