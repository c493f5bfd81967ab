"""Holds the codecs' tables of fields (printed by json_field_tables) against the JSON Schema:
every table's members are the properties of its object in the schema, in the same order, each
with a type, and every object of the schema with properties is some table's."""

import json
import subprocess
import sys

# Where a table's object stands in the schema when it is not the definition of its own name.
PLACES = {
    "timecodeRate": ["/$defs/timecode/properties/rate"],
    "trackChannel": ["/$defs/%s/properties/trackChannels/items" % kind
                     for kind in ("audioEssence", "dataEssence", "videoEssence")],
    "aspectRatio": ["/$defs/videoEssence/properties/aspectRatio"],
    "trackChannelToRemove": ["/$defs/track/properties/channels/items"],
    "mediaAssetGroupItem": ["/$defs/groupItem/oneOf/0"],
    "anglesMediaAssetGroupItem": ["/$defs/groupItem/oneOf/1"],
    "mediaAssetGroup": ["/$defs/mediaAssetGroupDocument"],
    "mediaAsset": ["/$defs/mediaAssetDocument"],
    "mediaResource": ["/$defs/mediaResource", "/$defs/mediaResourceDocument"],
    "stream": ["/$defs/stream", "/$defs/streamDocument"],
    "pelkOperatorProfile": ["/$defs/pelkOperatorProfile", "/$defs/pelkOperatorProfileDocument"],
    "anglesPelkOperatorProfile": ["/$defs/anglesPelkOperatorProfile", "/$defs/anglesPelkOperatorProfileDocument"],
}
# Objects of the schema that are no table's: the schema member itself, and metadata dictionaries.
NO_TABLE = ("/properties/schema", "/$defs/metadata")


def at(schema, pointer):
    node = schema
    for step in pointer.split("/")[1:]:
        node = node[int(step)] if isinstance(node, list) else node[step]
    return node


def objects(node, pointer=""):
    if isinstance(node, dict):
        if "properties" in node:
            yield pointer
        for key, value in node.items():
            yield from objects(value, pointer + "/" + key)
    elif isinstance(node, list):
        for index, value in enumerate(node):
            yield from objects(value, pointer + "/" + str(index))


def main(printer, schema_file):
    schema = json.load(open(schema_file, encoding="utf-8"))
    problems = []
    covered = set()
    for line in subprocess.run([printer], check=True, capture_output=True, text=True).stdout.splitlines():
        definition, *names = line.split()
        for pointer in PLACES.get(definition, ["/$defs/" + definition]):
            covered.add(pointer)
            properties = at(schema, pointer)["properties"]
            # The tag that names a class ("kind", "type") and the document's "schema" are written
            # before the table's members and are no table's.
            listed = [name for name in properties if name != "schema"]
            if listed and listed[0] in ("kind", "type") and listed[0] not in names:
                listed = listed[1:]
            if listed != names:
                problems.append("%s (%s): table %s, schema %s" % (definition, pointer, names, listed))
            problems += ["%s/properties/%s: no type" % (pointer, name) for name in names
                         if not set(properties[name]) & {"type", "$ref", "enum", "oneOf", "const"}]
    for pointer in objects(schema):
        if pointer not in covered and not pointer.endswith(NO_TABLE):
            problems.append("%s: no table holds this object" % pointer)
    print("\n".join(problems) or "every table is the schema's")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))
