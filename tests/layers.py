#!/usr/bin/env python3
"""Fails when an #include runs up a layer or closes a cycle between folders.

Layers, bottom to top: core/, rules/, flow/, view/, app/. A file may include its own layer and those
below; within a layer the folders include each other without a cycle."""
import os, re, sys
from graphlib import CycleError, TopologicalSorter

LAYERS = ["core", "rules", "flow", "view", "app"]
root = sys.argv[1]
include = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.M)
graph, faults = {}, []
for layer in LAYERS:
    for base, _, files in os.walk(os.path.join(root, layer)):
        for name in (n for n in files if n.endswith((".h", ".cpp"))):
            path = os.path.relpath(os.path.join(base, name), root)
            here = os.path.dirname(path)
            graph.setdefault(here, set())
            for target in include.findall(open(os.path.join(root, path)).read()):
                there, top = os.path.dirname(target), target.split("/")[0]
                if top not in LAYERS:
                    continue
                if LAYERS.index(top) > LAYERS.index(path.split("/")[0]):
                    faults.append(f"{path} includes {target}, a layer above it")
                elif there != here:
                    graph[here].add(there)
try:
    TopologicalSorter(graph).prepare()
except CycleError as e:
    faults.append("folders include each other in a cycle: " + " -> ".join(e.args[1]))
print("\n".join(faults) or f"{len(graph)} folders, includes run one way")
sys.exit(1 if faults else 0)
