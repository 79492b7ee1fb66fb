"""Manifests for using the library without registration: its side-by-side assembly, and a program that asks for it."""
import xml.etree.ElementTree as ElementTree

# Not the name of the DLL: Windows would look for the assembly's manifest inside the DLL then.
ASSEMBLY = "Talvex.TVLejisCore"
NAMESPACE = "urn:schemas-microsoft-com:asm.v1"
PROCESSORS = {"x86": "x86", "x64": "amd64"}


def _assembly():
    return ElementTree.Element("assembly", xmlns=NAMESPACE, manifestVersion="1.0")


def _identity(parent, name, version, architecture):
    ElementTree.SubElement(parent, "assemblyIdentity", type="win32", name=name, version=version,
                           processorArchitecture=PROCESSORS[architecture])


def _text(root):
    ElementTree.indent(root)
    return '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n' + ElementTree.tostring(root, "unicode") + "\n"


def of_library(library, version, architecture):
    root = _assembly()
    _identity(root, ASSEMBLY, version, architecture)
    file = ElementTree.SubElement(root, "file", name="TVLejisCore.dll")
    ElementTree.SubElement(file, "typelib", tlbid=library.guid, version=library.version, helpdir="")
    for one in library.classes:
        ElementTree.SubElement(file, "comClass", clsid=one.guid, threadingModel="Apartment", progid=one.progid,
                               tlbid=library.guid, description=one.description)
    for one in library.interfaces:
        ElementTree.SubElement(root, "comInterfaceExternalProxyStub", name=one.name, iid=one.guid,
                               proxyStubClsid32=one.proxy, tlbid=library.guid)
    return _text(root)


def of_program(name, version, architecture):
    root = _assembly()
    _identity(root, name, version, architecture)
    dependency = ElementTree.SubElement(ElementTree.SubElement(root, "dependency"), "dependentAssembly")
    _identity(dependency, ASSEMBLY, version, architecture)
    return _text(root)
