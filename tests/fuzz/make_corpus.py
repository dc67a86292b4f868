#!/usr/bin/env python3
"""make_corpus.py [DIR]: write the seed corpus of the fuzz targets (default: corpus/ beside this file).

The project file is laid out here from docs/file-formats.md, without the program."""
import os
import struct
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
DATA = os.path.join(HERE, "..", "..", "data")


def seeds(folder, target, files):
    where = os.path.join(folder, target)
    os.makedirs(where, exist_ok=True)
    for name, content in files.items():
        with open(os.path.join(where, name), "wb") as file:
            file.write(content)


def counted(text):
    data = text.encode("cp1252")
    return struct.pack("<H", len(data)) + data


def project():
    b = b"Nor"
    for line in ["FileName:;EC5setup; ;", "Language", "0;1;2;3", "gam_timb;gam_lam;gam_kerto;gam_k-bjelke", "", ""]:
        b += counted(line)
    b += struct.pack("<4f", 1.3, 1.25, 1.2, 1.25)
    for row in range(101):
        b += counted("C%d" % (14 + row)) + counted("T") + counted("") if row < 3 else counted("") * 3
        b += struct.pack("<9f", *([14 + row, 16, 2, 3, 7000, 4700, 0, 290, 0] if row < 3 else [0] * 9))
    b += struct.pack("<2h", 2, 2)
    for row in range(401):
        b += counted("T  48x%d" % (98 + row)) + counted("T") + counted("") if row < 4 else counted("") * 3
        b += struct.pack("<2f", *((48, 98 + row) if row < 4 else (0, 0)))
    b += struct.pack("<3h", 0, 3, 3) + struct.pack("<3h", 0, 2, 3)
    b += counted("Prøve") + counted("Øvre gurt")
    b += struct.pack("<h", 5) + "Øyeblikkslast  ".encode("cp1252")
    b += struct.pack("<7h", 2, 0, -1, 6, 2, 3, -1)
    b += struct.pack("<6f", 48, 101, 48, 100, -12.5, 27)
    b += struct.pack("<5h", 3, 0, -1, -1, 0) + b"a" + struct.pack("<2hf", 4, 0, 0)
    return b + bytes(624) + bytes(2 * 101) + bytes(100) + bytes(100)


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(HERE, "corpus")
    whole = project()
    record = 0x80 | 0x50  # edits counted from the record: part 5
    seeds(folder, "project", {
        "whole": b"\0" + whole,
        "cut": b"\0" + whole[:-1],
        "empty": b"",
        "sound": b"\1",
        "record-byte": bytes([1, record | 0, 40, 0, 255]),
        "record-word": bytes([1, record | 2, 19, 0, 10]),
        "record-float": bytes([1, record | 3, 60, 0, 9]),
        "length": bytes([1, 0x90 | 2, 0, 0, 10, 7, 255, 255, 0]),
        "insert": bytes([1, 0xA0 | 4, 4, 0, 3]) + b"abc",
        "erase": bytes([1, 0xC0 | 5, 9, 0, 12]),
        "truncate": bytes([1, 6, 0, 16]),
        "count": bytes([1, 0xA0 | 2, 2, 0, 6, 0xC0 | 2, 4, 0, 8]),
    })

    def table(kind, name):
        with open(os.path.join(DATA, name), "rb") as file:
            return bytes([kind]) + b"".join(file.readlines()[:12])

    seeds(folder, "tables", {
        "material": table(0, "TarnvikMaterial.csv"),
        "profile": table(1, "TarnvikProfile.csv"),
        "setup": table(2, "Tarnviksetup.csv"),
        "setup-comma": bytes([6]) + b"FileName:;EC5setup; ;\r\nLanguage;Nor\r\n0;1\r\ngam\r\n1,3;1,25;1,2;1,25;\r\n",
        "material-rows": bytes([8]) + b"C20;T;S ;20;19;2,3;3.6;9500;6400;590;330;0\nC22;T;NS;1\n\nC24;T;S\n;;S;1e40;x\n",
        "profile-rows": bytes([9]) + b"T  34x95;T;S;34;95\r\nT;T;S;3,4;1e99\rL;L;S x;.5;5.\n",
        "profile-comma": bytes([13]) + b"T  34x95;T;S;34,5;95\n",
        "many": bytes([8]) + b";;S\n" * 110,
    })
    seeds(folder, "numbers", {
        "picture-%02d" % picture: bytes([picture]) + struct.pack("<f", value) + text
        for picture, (value, text) in enumerate(
            [(0.5, b"12,5"), (-0.04, b"12abc"), (2.675, b" abc "), (1e38, b"1e39"), (99.95, b"1e-400"), (1e-45, b"-.5e1"),
             (-1234.5, b"+1.2.3"), (0.125, b"5."), (16777216, b"1e+"), (3.4e38, b"0.0000001e45"), (-0.5, b"-"), (1, b"")])
    })
    seeds(folder, "inputs", {
        "empty": b"{}",
        "object": b'{"P":-12.5,"alp":90,"Med_bulldog":true,"Kun_bolt":false,"Bulldog_index":0,"Lang":"Nor"}',
        "array": b'[{"Con_type":3,"dob_2":true,"enk_2":false},{"Ant_index":4,"Avstand_index":15}]',
        "free": b'{"Standard":false,"Txt_b1":"48,5","Txt_h1":"223","Txt_b2":"12abc","Txt_h2":"0"}',
        "edges": b'{"Mat_index":101,"Prof1_index":-1,"gm_T":0,"dc":1e30,"man_he":3.5e38}',
        "wrong": b'{"P":"x","Uf":1,"Klima":1.5}',
        "names": b'["Lastvar","Klima","Mat_index","Prof2_index","enk_1","dob_1","Bolt_index","Bolt_ab","Man_he_on","man_he",'
                 b'"gm_L","gm_Ke","gm_K","Prosjekt","Id"]',
        "option": b"P=-12,5",
        "sweep": b"angle=90:0:-7.5",
        "fix": b"bolt=M16x8.8,bolts=2,connector=D75,spacing=7d",
        "search": b'{"P":-1,"dob_1":true,"enk_1":false,"alp":40, "Standard":true}    ',
    })
    seeds(folder, "loads", {
        "semicolon": b"name;force;load\nDead;-3,2;permanent\nSnow;-12,5 kN;Medium\n",
        "comma": b"\xef\xbb\xbfload,name,force,#note\r\n3,\"a, \"\"b\"\"\",800N,\"x\r\ny\"\r\n",
        "minus": "name,force,load\na,\u22122,5\nb,+2.5,short\n".encode(),
        "huge": b"name;force;load\na;1e38;1\nb;-1e-40;2\n",
        "nameless": b"name;force;load;;\na;1;1;;\n;;;;\n",
        "damaged": b"name;force;load\na;\"1;1\nb;2;long\n",
    })
    seeds(folder, "csv", {
        "comma": b'Id,P,alp\nK1,8.5,30\n"K2, ""x""",-3,90\n',
        "semicolon": b"\xef\xbb\xbfId;tension;joint;Standard;#own;\r\nK1;8,5;1,2;SANN;x;\r\n;;;;;\r\nK2;1.5;;;;\r\n",
        "names": b"bolt,bolts,layout,spacing,connector,material,member1,member2,compression,angle,load,service\n"
                 b'M16x8.8,2,b,7d,D75,C24,2x48x198,48x223,12.5,40,medium,1\nM24x4.6,6,a,5,none,C14,48x98,"T 48x198",1,0,5,3\n',
        "quotes": b'P,Id\n"1\n2,x\n"3",4"\n5,"6\n7",\n"8"',
        "typed": b"P,member2,Man_he_on,man_he\n1,48x223,true,100\n1,48x98,true,0\n",
    })


if __name__ == "__main__":
    main()
