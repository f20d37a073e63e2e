"""GDB pretty-printers: objects as their fields, base values as text.

GDB loads this file by itself where it stands in its auto-load folder under the name of the library;
`source` loads it from anywhere. Records are known to the debug information of the library alone, so
objects show their fields where the library has its own.

Optionals, variants, lists and texts of a record are read here, since the standard library's own
printers may be missing. What has not the form expected, such as a base value of other base
libraries, is left to GDB.
"""

import gdb
import gdb.printing


def bare(type_):
    return type_.strip_typedefs().unqualified()


def is_class(type_):
    return type_.code in (gdb.TYPE_CODE_STRUCT, gdb.TYPE_CODE_UNION)


def members(type_):
    """The members that an object holds, bases among them; static ones have no place in it."""
    return [member for member in bare(type_).fields() if hasattr(member, "bitpos")]


def short_name(type_):
    name = type_.name or str(type_)
    if name.startswith("std::vector<"):
        return short_name(bare(type_.template_argument(0))) + "[]"
    return name.split("<")[0].split("::")[-1]


def at_start_of(value, type_):
    """The object of a type that stands where another one begins."""
    return value.address.cast(type_.pointer()).dereference()


def pointer_in(value):
    """The pointer that a unique_ptr is, whatever it calls its members."""
    while is_class(bare(value.type)):
        size = value.type.sizeof
        value = next(value[part] for part in members(value.type) if part.type.sizeof == size)
    return value


def list_items(value):
    first, last = (value["_M_impl"][name] for name in ("_M_start", "_M_finish"))
    count = int(last - first)
    if count == 0:
        return "empty list"
    items = at_start_of(first.dereference(), first.dereference().type.array(count - 1))
    items.fetch_lazy()  # an object that was never constructed fails here
    return items


def shown(name, value):
    """How a field is called and shown: an optional by its content, a variant by its alternative,
    which is told behind the name."""
    type_ = bare(value.type)
    kind = type_.name or ""
    try:
        if kind.startswith("std::optional<"):
            if not value["_M_payload"]["_M_engaged"]:
                return name, "absent"
            return shown(name, at_start_of(value, bare(type_.template_argument(0))))
        if kind.startswith("std::variant<"):
            index = int(value["_M_index"])
            if index == (1 << 8 * value["_M_index"].type.sizeof) - 1:
                return name, "valueless"
            alternative = bare(type_.template_argument(index))
            if not (alternative.name or "").startswith("std::variant<"):
                name = f"{name} ({short_name(alternative)})"
            return shown(name, at_start_of(value["_M_u"], alternative))
        if kind.startswith("std::vector<"):
            return name, list_items(value)
        if kind.startswith(("std::basic_string<", "std::__cxx11::basic_string<")):
            length = int(value["_M_string_length"])
            return name, value["_M_dataplus"]["_M_p"].lazy_string(length=length)
        if type_.code == gdb.TYPE_CODE_ENUM:
            names = {item.enumval: item.name.split("::")[-1] for item in type_.fields()}
            return name, names.get(int(value), str(int(value)))
    except (gdb.error, AttributeError, RuntimeError):
        pass
    return name, value


class Object:
    """A class of the library, or one of its plain structures."""

    def __init__(self, value):
        self.state = None
        self.holder = value
        if "record_" not in [member.name for member in members(value.type)]:
            return
        self.holder = None
        try:
            record = pointer_in(value["record_"])
            if int(record) == 0:
                lazy = "::lazy_handle<" in bare(value["record_"].type).name
                self.state = "empty" if lazy else "no object"
            elif not members(record.type.target()):
                self.state = "no debug information of libkivo-erp-fiscal"
            else:
                self.holder = record.dereference()
                self.holder.fetch_lazy()
        except gdb.MemoryError:
            self.state, self.holder = "no object", None

    def to_string(self):
        return self.state

    def children(self):
        if self.holder is not None:
            for member in members(self.holder.type):
                yield shown(member.name.rstrip("_"), self.holder[member])


def decimal_text(word):
    coefficient, scale = word >> 4, word & 15
    digits = str(abs(coefficient)).rjust(scale + 1, "0")
    point = len(digits) - scale
    return ("-" if coefficient < 0 else "") + digits[:point] + ("." + digits[point:] if scale else "")


def date_text(word):
    return f"{word >> 9:04}-{word >> 5 & 15:02}-{word & 31:02}" if word else "no date"


def datetime_text(word):
    if word == 0:
        return "no time"
    day = date_text(word >> 37 << 9 | (word >> 33 & 15) << 5 | word >> 28 & 31)
    time = f"{word >> 23 & 31:02}:{word >> 17 & 63:02}:{word >> 11 & 63:02}"
    offset = f"{'-' if word >> 10 & 1 else '+'}{word >> 6 & 15:02}:{word & 63:02}"
    return f"{day}T{time}{offset}"


def check_digit(chars, weights):
    rest = sum((ord(char) - 48) * weight for char, weight in zip(reversed(chars), weights)) % 11
    return "0" if rest < 2 else str(11 - rest)


def cnpj_text(word):
    chars = ""
    for _ in range(12):
        word, digit = divmod(word, 36)
        chars = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"[digit] + chars
    if chars == "0" * 12:
        return "no number"
    for _ in range(2):
        chars += check_digit(chars, [2, 3, 4, 5, 6, 7, 8, 9] * 2)
    return chars


def cpf_text(word):
    return f"{word:011}" if word else "no number"


BASE_TEXTS = {
    "kivo::core::v7::decimal": decimal_text,
    "kivo::core::v7::date": date_text,
    "kivo::core::v7::datetime": datetime_text,
    "kivo::erp::v12::cnpj": cnpj_text,
    "kivo::erp::v12::cpf": cpf_text,
}


class BaseValue:
    def __init__(self, value, text):
        self.value = value
        self.text = text

    def to_string(self):
        return self.text(int(self.value["word_"]))


def kivo_erp_fiscal(value):
    """The printer of a value; none where GDB shows it as it is."""
    if value.type.code in (gdb.TYPE_CODE_REF, gdb.TYPE_CODE_RVALUE_REF):
        value = value.referenced_value()
    type_ = bare(value.type)
    name = type_.name or ""
    if not is_class(type_):
        return None
    if name in BASE_TEXTS:
        own = [member.name for member in members(type_)] == ["word_"]
        return BaseValue(value, BASE_TEXTS[name]) if own else None
    space = "kivo::erp::v12::fiscal::"
    if name.startswith(space) and name[len(space) :].isidentifier():
        return Object(value)
    return None


gdb.printing.register_pretty_printer(gdb.current_objfile(), kivo_erp_fiscal, replace=True)
