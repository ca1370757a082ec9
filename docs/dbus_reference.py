"""Writes the D-Bus reference from the interface's XML file: dbus_reference.py > docs/dbus.md

The XML file describes methods, signals and properties in the comments before them.
"""

import re
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
INTERFACE = ROOT / "platform/DBusConnector/org.measuringdevice.ConfigurationFileHandler.xml"

HEAD = """# D-Bus interface

<!-- Written by docs/dbus_reference.py from the XML file; do not edit. -->

The configuration service owns the name `org.measuringdevice.DeviceManager` on the [bus](installation.md#which-bus), and has an
object for each document. All objects have the interface `{name}`, whose [XML file]({xml}) is installed in
`share/dbus-1/interfaces`.

| object path | configuration `name` | method | file |
|---|---|---|---|
| `/UnitManagerConfiguration` | `UnitManager/UnitType` | `getConfiguration` | `units.json` |
| `/DefaultUnitConfiguration` | `UnitManager/DefaultUnit` | `getConfiguration` | `default-units.json` |
| `/DependencyConfiguration` | `UnitManager/Dependency` | `getConfigurationDependency` | `dependencies.json` |

Every user may call it; nobody can change anything through it. The connector of the library uses methods and signal, and works with a
service that has nothing else; the tool also uses the properties. [Architecture](architecture.md#the-d-bus-protocol) describes the
order of calls.
"""

ERRORS = """
## Errors

| name, after `{name}.Error.` | when |
|---|---|
| `UnknownConfiguration` | the object does not serve this configuration by this method |
| `NoConfiguration` | no valid document has been loaded yet |

## Try it

The service answers any D-Bus client. In a folder with the three documents, with the session bus:

```console
$ cp "$(pkg-config --variable=datadir unitmanager)"/*.json .
$ configuration-file-service --directory . 2>service.log &
serving . as org.measuringdevice.DeviceManager on session
$ dbus-send --print-reply=literal --dest=org.measuringdevice.DeviceManager /DefaultUnitConfiguration \\
  org.freedesktop.DBus.Properties.Get string:{name} string:state
   variant       active
$ dbus-send --print-reply=literal --dest=org.measuringdevice.DeviceManager /DependencyConfiguration \\
  {name}.getConfigurationDependency string:UnitManager/Dependency string:shell | head -n 2
   {{
  "PressureUnit": ["Pressure", "PressureRange"],
```
"""


def members(interface):
    """(element, its comment) for each member of the interface."""
    comment = ""
    for child in interface:
        if child.tag is ElementTree.Comment:
            comment = " ".join(child.text.split())
        else:
            yield child, comment
            comment = ""


def arguments(member, direction):
    found = [arg for arg in member.iter("arg") if arg.get("direction", "out") == direction]
    return ", ".join(f"{arg.get('name')}: {arg.get('type')}" for arg in found)


def method(member):
    return f"`{member.get('name')}({arguments(member, 'in')}) → {arguments(member, 'out')}`"


def signal(member):
    return f"`{member.get('name')}({arguments(member, 'out')})`"


def prop(member):
    changes = {note.get("value") for note in member.iter("annotation") if note.get("name").endswith("EmitsChangedSignal")}
    note = "constant" if "const" in changes else "announced by `PropertiesChanged`"
    return f"`{member.get('name')}: {member.get('type')}`, {member.get('access')}-only, {note}"


def section(title, interface, tag, form):
    text = f"\n## {title}\n"
    for member, comment in members(interface):
        if member.tag == tag:
            # Names and values of the text as code.
            description = re.sub(r'"([^"]+)"', r'`\1`', comment)
            text += f"\n- {form(member)}: {description}\n"
    return text


def reference():
    parser = ElementTree.XMLParser(target=ElementTree.TreeBuilder(insert_comments=True))
    interface = ElementTree.parse(INTERFACE, parser).getroot().find("interface")
    name = interface.get("name")
    known = {"method", "signal", "property"}
    assert {child.tag for child, _ in members(interface)} <= known, "a kind of member without a section"
    return (
        HEAD.format(name=name, xml="../" + INTERFACE.relative_to(ROOT).as_posix())
        + section("Methods", interface, "method", method)
        + section("Signals", interface, "signal", signal)
        + section("Properties", interface, "property", prop)
        + ERRORS.format(name=name)
    )


if __name__ == "__main__":
    print(reference(), end="")
