"""Prints a form file with as many controls as the argument says: the same shape as the forms of bench_engine."""

import sys

count = int(sys.argv[1])
print("object Bench: TForm\n  Caption = 'bench'\n  Left = 0\n  Top = 0\n  Width = 1200\n  Height = 900")
for i in range(count):
    panel = i % 20 == 0
    place, side, row = (i // 20, 100, 30) if panel else (i % 20, 20, 4)
    kind = "TPanel" if panel else "TLabel" if i % 2 else "TButton"
    if panel and i:
        print("  end")
    print(f"  object c{i}: {kind}\n    Left = {place % row * side}\n    Top = {place // row * side}\n"
          f"    Width = {side}\n    Height = {side}\n    Caption = 'caption {i}'")
    if not panel:
        print("  end")
print("  end\nend")
