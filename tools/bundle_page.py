#!/usr/bin/env python3
"""Joins the web page's ES modules into one, so that a first visit fetches the page's script in
one request rather than a waterfall of a dozen (docs/benchmarks.md, "The web page").

    bundle_page.py ENTRY OUTPUT

ENTRY is the page's main module (app/web/page/tourvane.mjs). Each module it imports from the
same folder ('./name.mjs') comes in once, before the modules that use it, in a function of its
own that returns what the module exports; an import of anything else ('./tourvane.js', the
game compiled by emscripten) stays an import of the joined module. The modules are written to
suit: imports of the form `import { a, b } from './x.mjs';` or `import name from './y.js';`,
and exports only as `export function`, `export async function`, `export class` or
`export const`. Anything else stops the build with the reason.
"""
import os
import re
import sys

IMPORT = re.compile(r"^import\s+(?:\{([^}]*)\}|(\w+))\s+from\s+'([^']+)';[ \t]*\n", re.M)
EXPORT = re.compile(r"^export\s+(?:async\s+)?(?:function\*?|class|const|let)\s+(\w+)", re.M)
FORBIDDEN = re.compile(r"^export\s+(default|\{|\*)|^import\s*\(", re.M)


def fail(why):
    sys.exit(f"bundle_page: {why}")


def main():
    if len(sys.argv) != 3:
        fail("usage: bundle_page.py ENTRY OUTPUT")
    entry, output = sys.argv[1], sys.argv[2]
    folder = os.path.dirname(os.path.abspath(entry))
    order, outside, seen = [], [], set()

    def visit(name, chain):
        if name in chain:
            fail(f"modules import each other in a cycle: {' -> '.join(chain + [name])}")
        if name in seen:
            return
        path = os.path.join(folder, name)
        try:
            text = open(path, encoding="utf-8").read()
        except OSError as e:
            fail(f"cannot read {path}: {e}")
        bad = FORBIDDEN.search(text)
        if bad:
            fail(f"{name}: '{bad.group(0)}' is not a form this joiner knows")
        needs = []
        for names, default, source in IMPORT.findall(text):
            if not source.startswith("./") or not source.endswith(".mjs"):
                line = f"import {default or '{ ' + names.strip() + ' }'} from '{source}';"
                if line not in outside:
                    outside.append(line)
                continue
            if default:
                fail(f"{name}: a module of the page exports no default ({source})")
            target = source[2:]
            visit(target, chain + [name])
            needs.append((target, [n.strip() for n in names.split(",") if n.strip()]))
        seen.add(name)
        order.append((name, IMPORT.sub("", text), needs, EXPORT.findall(text)))

    visit(os.path.basename(entry), [])
    exported = {name: set(names) for name, _, _, names in order}

    def var(name):
        return "module_" + re.sub(r"\W", "_", name)

    out = [f"// {os.path.basename(entry)} and the modules it imports, joined by "
           "tools/bundle_page.py.\n"]
    out += [line + "\n" for line in outside]
    for name, body, needs, names in order:
        out.append(f"\n// ---- {name} " + "-" * max(4, 90 - len(name)) + "\n")
        out.append(f"const {var(name)} = (() => {{\n" if names else "(() => {\n")
        for target, wanted in needs:
            # "a as b" takes a under the name b.
            pairs = [w.split(" as ") if " as " in w else [w, w] for w in wanted]
            missing = [a.strip() for a, _ in pairs if a.strip() not in exported[target]]
            if missing:
                fail(f"{name} imports {', '.join(missing)}, which {target} does not export")
            taken = ", ".join(a.strip() if a.strip() == b.strip() else f"{a.strip()}: {b.strip()}"
                              for a, b in pairs)
            out.append(f"const {{ {taken} }} = {var(target)};\n")
        out.append(re.sub(r"^export\s+", "", body, flags=re.M).rstrip() + "\n")
        if names:
            out.append(f"return {{ {', '.join(names)} }};\n")
        out.append("})();\n")
    with open(output, "w", encoding="utf-8") as f:
        f.write("".join(out))


main()
