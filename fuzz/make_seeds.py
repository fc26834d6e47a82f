#!/usr/bin/env python3
"""Writes the seeds that are made, not found: pictures, stored texts, short markup and choices."""

import base64
import pathlib
import random
import struct
import zlib

CORPUS = pathlib.Path(__file__).parent / "corpus"


def write(target, name, data):
    folder = CORPUS / target
    folder.mkdir(parents=True, exist_ok=True)
    (folder / name).write_bytes(data)


def chunk(kind, data):
    body = kind + data
    return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))


def png(width, height, depth, colour, claimed=None):
    samples = {0: 1, 2: 3, 3: 1, 4: 2, 6: 4}[colour]
    line = (width * samples * depth + 7) // 8
    raw = b"".join(b"\0" + bytes((x * y) & 255 for x in range(line)) for y in range(height))
    size = claimed or (width, height)
    header = struct.pack(">IIBBBBB", size[0], size[1], depth, colour, 0, 0, 0)
    palette = chunk(b"PLTE", bytes(range(48))) if colour == 3 else b""
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + palette
            + chunk(b"IDAT", zlib.compress(raw)) + chunk(b"IEND", b""))


def bmp(width, height, depth, compression=0, pixels=None):
    stride = (abs(width) * depth + 31) // 32 * 4
    body = pixels if pixels is not None else bytes(stride * abs(height))
    palette = bytes(4 * (1 << depth)) if depth <= 8 else b""
    offset = 54 + len(palette)
    return (b"BM" + struct.pack("<IHHI", offset + len(body), 0, 0, offset)
            + struct.pack("<IiiHHIIiiII", 40, width, height, 1, depth, compression, len(body),
                          0, 0, 0, 0) + palette + body)


GIF = base64.b64decode("R0lGODlhAgACAPAAAP8AAAAA/yH5BAAAAAAALAAAAAACAAIAAAIDRAIFADs=")
# The smallest grey JPEG of one block.
JPEG = bytes.fromhex(
    "ffd8ffdb004300" + "01" * 64 + "ffc0000b080001000101011100"
    "ffc4001400010000000000000000000000000000000a"
    "ffc40014100100000000000000000000000000000000ffda0008010100003f0054dfffd9")


def pictures():
    for colour, depths in {0: (1, 2, 4, 8, 16), 2: (8, 16), 3: (1, 2, 4), 4: (8, 16),
                           6: (8, 16)}.items():
        for depth in depths:
            write("rasterimage", f"png-{colour}-{depth}", png(5, 3, depth, colour))
    for size in ((0, 1), (1, 0), (16385, 1), (16384, 16384), (2 ** 31 - 1, 1), (9, 9)):
        write("rasterimage", f"png-claims-{size[0]}-{size[1]}", png(5, 3, 8, 2, size))
    for depth in (1, 4, 8, 16, 24, 32):
        write("rasterimage", f"bmp-{depth}", bmp(5, 3, depth))
        write("rasterimage", f"bmp-{depth}-upside-down", bmp(5, -3, depth))
    write("rasterimage", "bmp-rle8", bmp(4, 2, 8, 1, b"\4\1\0\0\4\2\0\1"))
    write("rasterimage", "bmp-rle4", bmp(4, 2, 4, 2, b"\4\1\0\0\4\2\0\1"))
    write("rasterimage", "bmp-rle8-jump", bmp(4, 2, 8, 1, b"\0\2\xff\xff\4\1\0\1"))
    for size in ((-1, 1), (20000, 20000), (2 ** 31 - 1, -2 ** 31)):
        write("rasterimage", f"bmp-claims-{size[0]}-{size[1]}", bmp(*size, 24, 0, bytes(48)))
    for name, whole in (("gif", GIF), ("jpeg", JPEG), ("png", png(5, 3, 8, 2))):
        write("rasterimage", name, whole)
        for part in (1, 2, 3):
            write("rasterimage", f"{name}-cut-{part}", whole[:len(whole) * part // 4])
    for name, head in (("svg", b"<svg width='9'/>"), ("text", b"canary"), ("empty", b"")):
        write("rasterimage", name, head)


def texts():
    samples = ["", "a", "ab", "abc", "<p>a</p>", "\u6e29\u5ea6", "\U0001f600", "\ufeffa", "\0",
               "\ufffe\uffff", "<table><tr><td>a</td></tr></table>", "a" * 100]
    for i, sample in enumerate(samples):
        stored = base64.b64encode(sample.encode())
        write("documentstorage", f"text-{i}", stored)
        write("documentstorage", f"text-{i}-blanks", b" " + stored[:3] + b"\r\n\t" + stored[3:])
        write("documentstorage", f"text-{i}-cut", stored[:-1])
        write("documentstorage", f"text-{i}-more", stored + b"=")
    for i, flaw in enumerate([b"=", b"====", b"Y===", b"YQ=Y", b"YR==", b"YWJj*GFi", b"_-__",
                              b"\xc3\x81YWJ", b"YQ==YQ==", b"\0\0\0\0"]):
        write("documentstorage", f"flaw-{i}", flaw)
    for i, data in enumerate([b"\xff", b"\xc0\x80", b"\xed\xa0\x80", b"ab\xe6\xb8", b"\xf4\x90\x80\x80"]):
        write("documentstorage", f"utf8-{i}", base64.b64encode(data))


def markup():
    numbers = ["0", "-1", "999", "2147483648", "1e30", "nan", "inf", "50%", "9px", "1e9pt", "''"]
    for i, number in enumerate(numbers):
        write("htmlguard", f"attributes-{i}",
              f"<table border={number} width={number}><tr><td colspan={number} rowspan={number}>"
              f"a</table><img width={number} height={number}><font size={number}>b".encode())
        write("htmlguard", f"styles-{i}",
              f"<p style='margin:{number};font-size:{number};line-height:{number}'>a"
              f"<td style='padding:{number} {number};border:{number} solid'>b".encode())
    tags = ["b", "p", "li", "ul", "table", "tr", "td", "th", "br", "img", "pre", "dl", "dd",
            "thead", "caption", "head", "style", "script", "title", "div"]
    for first, second in zip(tags, tags[1:] + tags[:1]):
        write("htmlguard", f"tags-{first}",
              f"<{first}>a<{second}>b<{first}>c</{second}>d</{first}>e<{first}/>f".encode())


def units():
    numbers = ["12", "10.5", "9.", ".5", "", "1e3", "-1", "0012", "9" * 400, "1.2.3"]
    frames = ["font-size:{}pt", "font-size: {}px;", "<p style=' font-size:\t{}pt'>a</p>",
              "<p>font-size:{}pt</p>font-size:{}px", "<meta  content=\"1\" name=\"qrichtext\"/>{}",
              "&lt;font-size:{}pt<b style=\"font-size:{}px\">font-size:{}pxfont-size:{}pt"]
    for i, number in enumerate(numbers):
        for k, frame in enumerate(frames):
            write("htmlunits", f"size-{i}-{k}", frame.replace("{}", number).encode())
    for i, odd in enumerate([b"\xed\xa0\x80font-size:1pt", b"font-size:\xc2\xa01pt",
                             b"font-size:\xd9\xa1pt", b"><><font-size:1pt", b"font-size:font-size:1pt"]):
        write("htmlunits", f"odd-{i}", odd)


def records():
    style = ('{"bgColor":0,"bold":true,"color":255,"fontName":"Sans","fontSize":16,"italic":false,'
             '"underline":true}')
    values = ["null", "true", "1.5", "-4294967295", "1e400", "1e300", '"5"', '"\\ud800"', "[]", "[5]",
              "{}", '{"a":[{}]}', '"a:b"', '":"', '""']
    for i, value in enumerate(values):
        for k, text in enumerate([
                f'[{{"id":{value},"name":"n","conditions":[{{"type":0,"expression":[">5"],'
                f'"fontStyle":{style},"key":{value}}},{{"key":"","x":{value}}}]}}]',
                f'[{{"conditions":[{{"type":{value},"expression":{value},"fontStyle":{value}}}]}},{value}]',
                f'[{{"id":"1","key":{value},"defaultValue":{value},"expressions":[{{"variableName":'
                f'"var1","expression":{{"func":{value},"args":["${{a}}",{value}]}}}}],"z":{value}}}]']):
            write("recordsjson", f"value-{i}-{k}", text.encode())
    for i, text in enumerate(["", "[", "{}", "[[", "[]]", "[" * 1025, '[{"id":"a","id":"b"}]',
                              '[{"conditions":[{"key":"b:x"},{"key":""},{"key":"a:y"}]}]']):
        write("recordsjson", f"text-{i}", text.encode())


def conditions():
    numbers = ["12", "-.5", "", "-", "5.", ".", "--5", "+5", "1e400", "9" * 400, "\u0665", "\uff15"]
    for i, number in enumerate(numbers):
        for k, frame in enumerate([">{}", ">= {}\n", "=={}|{}", "({},{})", "[ {} , {} )|5"]):
            write("conditionexpression", f"number-{i}-{k}", frame.replace("{}", number).encode())
    for i, pattern in enumerate(["^[A-Z].*", "(a+)+$", "(?R)?a", "(*UCP)a", "(a", "[5,10)", "\\",
                                 ".{0,100}.{0,100}[xy]", "(?:(?!.*x)a)*y", "(a?)(\\g<1>\\g<1>)"]):
        write("conditionexpression", f"pattern-{i}", f"{pattern}|{'a' * 40}b".encode())
    for i, text in enumerate([">5\ud800", "\udc00|\ud83d\ude00", "(\0,5)", "(5,5)\n\n"]):
        write("conditionexpression", f"wide-{i}", b"w" + text.encode("utf-16-le", "surrogatepass"))


def bindkeys():
    heads = ["", "a", "_1", "\u6e90:\u6570", "s:a.b", "a..b", ".a", "\U00010400", "a.", "a.{b", "a}.{b,c"]
    tails = ["", "[]", "[][]", "[][][]", "[12][]", "[\u0663][]", "[1a][]", "[]\n", "\n\n", ".{a,b}", ".{a.b,}[]",
             ".{}[]", "}", "}[]", ".{.{a}", ".{a}.{b}[]\n", "[2]", ".{a\n}"]
    for i, head in enumerate(heads):
        write("bindkey", f"keys-{i}-none", head.encode())
        for k, tail in enumerate(tails):
            write("bindkey", f"keys-{i}-{k}", (head + tail).encode())
    for i, text in enumerate(["a\ud800", "\udc00[]", "a.{\ud83d\ude00}[]", "\0a", "a\u0301[]"]):
        write("bindkey", f"wide-{i}", b"w" + text.encode("utf-16-le", "surrogatepass"))


def replies():
    tables = ["a,b\n1,\"x,\"\"y\"\"\n2\"\n3,\n", "a;b\r\n1,5;2\r\n", "a\tb\n\t2\n", "a|b\n1|2",
              "\ufeffa\n1\n", "a,b\n1\n2,3\n", "a\n1,2\n", "a,,a,a 2\n1,2,3,4\n", "a\n1\0\n", "a,b\n1,\"2",
              "\n\n", "," * 300, "\u540d\n\u4e2d\n", "a,b\n" * 50, " \"a\" , b \n"]
    for i, table in enumerate(tables):
        for encoding in range(3):
            write("replies", f"csv-{i}-{encoding}", bytes([3 * encoding]) + table.encode())
    objects = ['{"z": 12.50, "a": -1e3, "t": true, "n": null}', "[1, [2], {}]", " 7 ",
               '[{"a": 1}, {"b": "", "a": null}]', '[{"a": 1}, {"a": [1]}]',
               '{"a": "\\ud83d\\ude00\\ud83d\\u0000"}', "[1e400]", '{"a": [1, 2', "{} x", "[01]", '["\\u-12f"]',
               "[" * 300, '{"g": [[1, 2], [3]], "r": {"a": {"b": 1}}}', '{"a": 1, "a": 2, "": 3}']
    for i, text in enumerate(objects):
        write("replies", f"json-{i}", bytes([2]) + text.encode())


def templates():
    paths = ["s:t", "s:n.m[1][0]", "s:a.b", "n.m[2].k", "s:n.m[]", "s:n.m[1][]", "s:m[][]", "s:r.{a,b.c}[]", "s:r[0].{a}",
             "s:n.{m}", "s:v[]", "s:t[]", "s:v[9]", "s:v[-1]", "s:v[]x", "s:n..m", "s:.n", ":v[]", "s:r.{}[]", "s:v[]\n"]
    for i, path in enumerate(paths):
        for k, tail in enumerate(["", "[]", ".{a,b}[]"]):
            write("datapath", f"path-{i}-{k}", (path + tail).encode())
    rows = ['<tr><td width="9">${a}</td><td>x${0}${i}</td></tr>', '<a href="bindStyle;1;n"><b>${a}</b></a>', "${a",
            '<img src="data://bindKey/s/f.png" title="s:f" alt=""/>', '<table a="${T}"><tr>${T}<td></table>', "<td ${a}>",
            '<body><table><tr><td>${T}<table></table></table>', "${${a}}", "<!-- ${a} -->${a}", "<style>${a}</style>"]
    values = ["<b>", "&amp;&#0;", "${a}", "\0\ufffe\u2028", "]]></table>", '" onload="', "\r\n"]
    for i, row in enumerate(rows):
        for k, value in enumerate(values):
            write("templatetext", f"row-{i}-{k}", (row + "\n" + value).encode())


def choices():
    for target, longest in (("storedtext", 400), ("fragmentmerge", 150), ("operations", 300), ("tabletemplate", 200)):
        for i in range(60):
            numbers = random.Random(f"{target} {i}")
            size = longest * (i + 1) // 60
            write(target, f"choices-{i}", bytes(numbers.randrange(256) for _ in range(size)))


pictures()
texts()
markup()
units()
records()
conditions()
bindkeys()
replies()
templates()
choices()
