#!/usr/bin/env python3
"""Writes the type stubs of the package orvik_media_assets from the built module itself.

    generate_stubs.py PACKAGE_DIRECTORY

imports orvik_media_assets (PYTHONPATH names the build tree) and writes __init__.pyi, and a stub
per submodule (time_points.pyi), into PACKAGE_DIRECTORY. Everything comes from what pybind11 made
of the bindings: classes with their bases and docstrings, functions and methods with their
overloads from the signature lines of their docstrings, properties from their getters' and
setters' signatures, enumeration members and constants from their values. Two rules add to the
signatures: a class whose docstring ends "Converts implicitly from A, B." is accepted as A or B
wherever a parameter expects it, and a sequence's __iter__ yields what its __getitem__ returns.

It stops, naming the place, at whatever it cannot type (a C++ type name in a signature, which
pybind11 writes for a class bound after the function that uses it, or a member of a kind it does
not know), so that no binding is ever missing from the stubs.
"""

import re
import sys
import types
from pathlib import Path
from typing import Any, NamedTuple

PACKAGE = "orvik_media_assets"

# The names in pybind11's signatures that a stub writes as they are; the generic ones that
# pybind11 writes without parameters get Any for them.
BUILTINS = {"int", "float", "str", "bool", "bytes", "object", "None", "..."}
GENERICS = {"List": "list", "Dict": "dict", "Set": "set", "Tuple": "tuple", "Iterable": "Iterable",
            "Iterator": "Iterator", "Sequence": "Sequence", "Callable": "Callable"}
BARE_GENERICS = {"list": "list[Any]", "dict": "dict[Any, Any]", "set": "set[Any]", "tuple": "tuple[Any, ...]",
                 "Iterable": "Iterable[Any]", "Iterator": "Iterator[Any]", "Sequence": "Sequence[Any]",
                 "Callable": "Callable[..., Any]"}
ABSTRACT = {"Iterable", "Iterator", "Sequence", "Callable"}  # from collections.abc
CONVERSIONS = re.compile(r"Converts implicitly from (.+)\.$")

# The descriptor of a property whose setter takes more than its getter returns.
ASSIGNABLE = [
    "",
    '_Get = TypeVar("_Get")',
    '_Set = TypeVar("_Set")',
    "",
    "class _Assignable(Generic[_Get, _Set]):",
    '    """A property that reads as _Get and is assigned any _Set, converted implicitly."""',
    "    def __get__(self, instance: object, owner: type | None = None) -> _Get: ...",
    "    def __set__(self, instance: object, value: _Set) -> None: ...",
]


class StubError(Exception):
    """A member that the stubs cannot describe; the message names it."""


class Parameter(NamedTuple):
    name: str
    type: str  # as pybind11 writes it; "" for *args and **kwargs
    has_default: bool


class Signature(NamedTuple):
    parameters: list[Parameter]
    returns: str
    doc: str


def split_top_level(text: str) -> list[str]:
    """`text` split at the commas that stand outside brackets, angle brackets and quotes."""
    parts, depth, quote, start = [], 0, "", 0
    for position, character in enumerate(text):
        if quote:
            quote = "" if character == quote else quote
        elif character in "'\"":
            quote = character
        elif character in "[(<":
            depth += 1
        elif character in "])>":
            depth -= 1
        elif character == "," and depth == 0:
            parts.append(text[start:position].strip())
            start = position + 1
    parts.append(text[start:].strip())
    return [part for part in parts if part]


def parse_signatures(doc: str | None, where: str) -> list[Signature]:
    """The signatures in a pybind11 docstring, one or the numbered overloads, each with its text."""
    if not doc:
        raise StubError(f"{where}: no docstring with a signature")
    blocks = [doc]
    if doc.split("\n")[1:2] == ["Overloaded function."]:
        blocks = re.split(r"\n\n\d+\. ", "\n\n" + doc.split("\n", 2)[2].strip("\n"))[1:]
    signatures = []
    for block in blocks:
        head, _, text = block.partition("\n")
        match = re.fullmatch(r"\w*\((.*)\) -> (.+)", head)
        if not match:
            raise StubError(f"{where}: no signature in its docstring: {head!r}")
        parameters = []
        for part in split_top_level(match.group(1)):
            name, _, rest = part.partition(": ")
            annotation, equals, _ = rest.partition(" = ")
            parameters.append(Parameter(name, annotation, bool(equals)))
        signatures.append(Signature(parameters, match.group(2), text.strip()))
    return signatures


def docstring(text: str, indent: str) -> list[str]:
    """`text` as a docstring at `indent`."""
    text = text.replace("\\", "\\\\").replace('"""', '\\"\\"\\"')
    if text.endswith('"'):
        text = text[:-1] + '\\"'
    first, *rest = text.split("\n")
    if not rest:
        return [f'{indent}"""{first}"""']
    return [f'{indent}"""{first}', *[indent + line if line else "" for line in rest], f'{indent}"""']


def is_dunder(name: str) -> bool:
    return name.startswith("__") and name.endswith("__")


class Stub:
    """One stub file: the module `module`, which names the package's objects relative to itself."""

    def __init__(self, module: types.ModuleType):
        self.module = module
        self.package = sys.modules[PACKAGE]
        self.lines: list[str] = []
        self.typing: set[str] = set()
        self.abstract: set[str] = set()
        self.imports: set[str] = set()
        self.needs_assignable = False

    # Types

    def class_name(self, cls: type) -> str:
        """How this stub names `cls`, importing its module when it is another."""
        if cls.__module__ == "builtins":
            return cls.__name__
        if cls.__module__ == self.module.__name__:
            return cls.__qualname__
        if cls.__module__ == PACKAGE:
            self.imports.add(f"import {PACKAGE}")
            return f"{PACKAGE}.{cls.__qualname__}"
        submodule = cls.__module__.removeprefix(PACKAGE + ".")
        self.imports.add(f"from . import {submodule} as {submodule}")
        return f"{submodule}.{cls.__qualname__}"

    def simple_type(self, name: str, where: str) -> str:
        if name in BUILTINS:
            return name
        if name in BARE_GENERICS:
            self.note_generic(name)
            self.typing.add("Any")
            return BARE_GENERICS[name]
        if name.startswith(PACKAGE + "."):
            target: Any = self.package
            for part in name.split(".")[1:]:
                target = getattr(target, part, None)
            if isinstance(target, type):
                return self.class_name(target)
        raise StubError(f"{where}: cannot type {name!r}")

    def generic_type(self, name: str, arguments: list[str], where: str) -> str:
        if name == "Optional":
            return f"{arguments[0]} | None"
        if name == "Union":
            return " | ".join(arguments)
        if name not in GENERICS:
            raise StubError(f"{where}: cannot type {name!r}")
        self.note_generic(name)
        return f"{GENERICS[name]}[{', '.join(arguments)}]"

    def note_generic(self, name: str) -> None:
        if name in ABSTRACT:
            self.abstract.add(name)

    def type_of(self, text: str, where: str) -> str:
        """A type of a pybind11 signature as this stub writes it."""
        if re.search(r"[^\w.\[\], ]", text):
            raise StubError(f"{where}: {text!r} is no Python type (is its class bound after this function?)")
        # pybind11 2.10 writes std::array<T, N> as List[T[N]].
        tokens = re.findall(r"[\w.]+|[\[\],]", re.sub(r"(\w)\[\d+\]", r"\1", text))

        def read() -> str:
            token = tokens.pop(0)
            if token == "[":  # a Callable's parameter list
                return "[" + ", ".join(items()) + "]"
            if tokens and tokens[0] == "[":
                tokens.pop(0)
                return self.generic_type(token, items(), where)
            return self.simple_type(token, where)

        def items() -> list[str]:
            result = []
            while tokens[0] != "]":
                result.append(read())
                if tokens[0] == ",":
                    tokens.pop(0)
            tokens.pop(0)
            return result

        result = read()
        if tokens:
            raise StubError(f"{where}: cannot read the type {text!r}")
        return result

    def parameter_type(self, text: str, where: str) -> str:
        """A parameter's type, widened by the implicit conversions of its class."""
        written = self.type_of(text, where)
        if not text.startswith(PACKAGE + "."):
            return written
        cls: Any = self.package
        for part in text.split(".")[1:]:
            cls = getattr(cls, part)
        match = CONVERSIONS.search(cls.__doc__ or "")
        if not match:
            return written
        alternatives = []
        for name in match.group(1).split(", "):
            found = getattr(self.package, name, None)
            alternatives.append(self.class_name(found) if isinstance(found, type) else self.simple_type(name, where))
        return " | ".join([written, *alternatives])

    # Members

    def write_function(self, name: str, signature: Signature, indent: str, where: str, *, method: bool,
                       overloaded: bool, returns: str | None = None) -> None:
        parameters = signature.parameters[1:] if method else signature.parameters
        written = ["self"] if method else []
        for index, parameter in enumerate(parameters):
            if parameter.name.startswith("*"):
                self.typing.add("Any")
                written.append(f"{parameter.name}: Any")
                continue
            # Python compares with any object: pybind11 answers NotImplemented for another type.
            if name in ("__eq__", "__ne__"):
                written.append("other: object")
                continue
            annotation = self.parameter_type(parameter.type, where)
            written.append(f"{parameter.name}: {annotation}" + (" = ..." if parameter.has_default else ""))
            # pybind11 names the parameters it was given no name for argN; they are positional only.
            if re.fullmatch(r"arg\d+", parameter.name) and not any(
                    re.fullmatch(r"arg\d+", later.name) for later in parameters[index + 1:]):
                written.append("/")
        if overloaded:
            self.typing.add("overload")
            self.lines.append(f"{indent}@overload")
        if not method and indent:
            self.lines.append(f"{indent}@staticmethod")
        head = f"{indent}def {name}({', '.join(written)}) -> {returns or self.type_of(signature.returns, where)}:"
        if signature.doc:
            self.lines += [head, *docstring(signature.doc, indent + "    ")]
        else:
            self.lines.append(head + " ...")

    def write_functions(self, name: str, doc: str | None, indent: str, where: str, *, method: bool,
                        returns: str | None = None) -> None:
        signatures = parse_signatures(doc, where)
        for signature in signatures:
            self.write_function(name, signature, indent, where, method=method, overloaded=len(signatures) > 1,
                                returns=returns)

    def write_property(self, name: str, value: property, indent: str, where: str) -> None:
        getter = parse_signatures(value.fget.__doc__ if value.fget else None, where)[0]
        setter = parse_signatures(value.fset.__doc__, where)[0] if value.fset else None
        returns = self.type_of(getter.returns, where)
        takes = self.parameter_type(setter.parameters[-1].type, where) if setter else returns
        # A type checker takes a property's setter to take what its getter returns; a setter that
        # takes more, by implicit conversions, needs a descriptor of both types.
        if takes != returns:
            self.needs_assignable = True
            self.lines.append(f"{indent}{name}: _Assignable[{returns}, {takes}]")
            return
        self.lines.append(f"{indent}@property")
        doc = value.__doc__ if value.__doc__ != (value.fget.__doc__ if value.fget else None) else ""
        self.write_function(name, getter._replace(doc=doc or ""), indent, where, method=True, overloaded=False)
        if setter:
            self.lines.append(f"{indent}@{name}.setter")
            self.lines.append(f"{indent}def {name}(self, value: {takes}) -> None: ...")

    def element_type(self, cls: type, where: str) -> str | None:
        """What the sequence `cls` holds: what its __getitem__ returns, if it has one signature."""
        getitem = vars(cls).get("__getitem__")
        if getitem is None:
            return None
        signatures = parse_signatures(getitem.__doc__, where)
        return self.type_of(signatures[0].returns, where) if len(signatures) == 1 else None

    def write_class(self, cls: type, indent: str) -> None:
        where = f"{cls.__module__}.{cls.__qualname__}"
        bases = [self.class_name(base) for base in cls.__bases__ if base.__module__ != "pybind11_builtins"]
        self.lines.append(f"{indent}class {cls.__name__}" + (f"({', '.join(bases)})" if bases else "") + ":")
        inner = indent + "    "
        start = len(self.lines)
        if cls.__doc__:
            self.lines += docstring(cls.__doc__, inner)
        enumeration = "__entries" in vars(cls)
        for name, value in vars(cls).items():
            member = f"{where}.{name}"
            if name in ("__doc__", "__module__", "__dict__", "__weakref__") or (
                    name.startswith("_") and not is_dunder(name)):
                continue
            # pybind11's __init__ of a class bound without a constructor, which raises TypeError.
            if name == "__init__" and type(value).__name__ == "wrapper_descriptor":
                continue
            if name == "__hash__" and value is None:
                self.typing.add("ClassVar")
                self.lines.append(f"{inner}__hash__: ClassVar[None]  # type: ignore[assignment]")
            elif isinstance(value, type):
                self.write_class(value, inner)
            elif isinstance(value, staticmethod):
                self.write_functions(name, value.__func__.__doc__, inner, member, method=False)
            elif type(value).__name__ == "instancemethod":
                element = self.element_type(cls, member) if name == "__iter__" else None
                if element:
                    self.abstract.add("Iterator")
                self.write_functions(name, value.__doc__, inner, member, method=True,
                                     returns=f"Iterator[{element}]" if element else None)
            elif type(value).__name__ == "pybind11_static_property":
                self.typing.add("ClassVar")
                kind = (f"dict[str, {cls.__qualname__}]" if enumeration and name == "__members__"
                        else self.type_of(parse_signatures(value.fget.__doc__, member)[0].returns, member))
                self.lines.append(f"{inner}{name}: ClassVar[{kind}]")
            elif isinstance(value, property):
                self.write_property(name, value, inner, member)
            elif type(value).__module__.startswith(PACKAGE):  # enumeration members, exported ones too
                self.typing.add("ClassVar")
                self.lines.append(f"{inner}{name}: ClassVar[{self.class_name(type(value))}]")
            elif isinstance(value, (bool, int, float, str)):
                # On an exception class, what every raised instance carries.
                if issubclass(cls, BaseException):
                    self.lines.append(f"{inner}{name}: {type(value).__name__}")
                else:
                    self.typing.add("ClassVar")
                    self.lines.append(f"{inner}{name}: ClassVar[{type(value).__name__}]")
            else:
                raise StubError(f"{member}: cannot type a {type(value).__name__}")
        if len(self.lines) == start:
            self.lines.append(f"{inner}...")

    def write_module(self) -> str:
        name = self.module.__name__
        for attribute, value in vars(self.module).items():
            where = f"{name}.{attribute}"
            if attribute.startswith("_"):
                continue
            if isinstance(value, types.ModuleType):
                self.imports.add(f"from . import {attribute} as {attribute}")
            elif isinstance(value, type) and value.__module__ != name:
                module = value.__module__.removeprefix(PACKAGE)
                self.imports.add(f"from {module or '.'} import {value.__name__} as {value.__name__}")
            elif isinstance(value, type):
                self.lines.append("")
                self.write_class(value, "")
            elif isinstance(value, types.BuiltinFunctionType):
                self.lines.append("")
                self.write_functions(attribute, value.__doc__, "", where, method=False)
            else:
                raise StubError(f"{where}: cannot type a {type(value).__name__}")
        if self.needs_assignable:
            self.typing.update(("Generic", "TypeVar"))
        head = ["# Written from the built module by python/generate_stubs.py.", *docstring(self.module.__doc__ or "", "")]
        if self.abstract:
            head.append(f"from collections.abc import {', '.join(sorted(self.abstract))}")
        if self.typing:
            head.append(f"from typing import {', '.join(sorted(self.typing))}")
        head += sorted(self.imports)
        if self.needs_assignable:
            head += ASSIGNABLE
        return "\n".join(head + self.lines) + "\n"


def main() -> int:
    directory = Path(sys.argv[1])
    package = __import__(PACKAGE)
    modules = [package] + [value for value in vars(package).values() if isinstance(value, types.ModuleType)]
    try:
        stubs = {module.__name__: Stub(module).write_module() for module in modules}
    except StubError as error:
        print(f"generate_stubs.py: {error}", file=sys.stderr)
        return 1
    for name, text in stubs.items():
        file = "__init__.pyi" if name == PACKAGE else name.removeprefix(PACKAGE + ".") + ".pyi"
        (directory / file).write_text(text, encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
