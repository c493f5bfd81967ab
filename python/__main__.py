"""python3 -m orvik_media_assets FILE: the asset or group in a JSON document as the tree that
`orvik-asset show` prints, made by the tool's own code (tree_text()), without colour.

The exit status is the tool's: 0 when shown, 2 on a usage error or a file that cannot be read as
a document, with one line on standard error.
"""

import argparse
import sys

import orvik_media_assets as orvik

PROGRAM = "python3 -m orvik_media_assets"


def main(arguments: list[str] | None = None) -> int:
    parser = argparse.ArgumentParser(prog=PROGRAM, description="Print an asset or a group as an indented tree.")
    parser.add_argument("file", metavar="FILE",
                        help="the JSON document of an asset or a group; - reads standard input")
    file: str = parser.parse_args(arguments).file
    name = "standard input" if file == "-" else file
    try:
        if file == "-":
            document = sys.stdin.read()
        else:
            with open(file, encoding="utf-8") as stream:
                document = stream.read()
        tree = orvik.tree_text(document)
    except OSError as error:
        print(f"{PROGRAM}: {name}: {error.strerror}", file=sys.stderr)
        return 2
    except ValueError as error:  # orvik.JsonError among them
        print(f"{PROGRAM}: {name}: {error}", file=sys.stderr)
        return 2
    sys.stdout.write(tree)
    return 0


if __name__ == "__main__":
    sys.exit(main())
