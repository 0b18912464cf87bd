#!/bin/sh
# Runs one file of browser tests with node's test runner, when the built page, Debian's
# chromium and the test packages (npm ci here) are all at hand. Missing one, the file is
# skipped (exit 77), or fails where TOURVANE_WEB_REQUIRED is set, as scripts/test sets it.
set -eu
here="$(dirname "$0")"
site="${TOURVANE_WEB_SITE:-$here/../../build-web/site}"
missing=""
[ -f "$site/index.html" ] && [ -f "$site/tourvane.wasm" ] ||
  missing="the page in $site (scripts/web --build-only)"
[ -d "$here/node_modules/playwright-core" ] ||
  missing="${missing:+$missing, }the test packages (npm ci in tests/web)"
[ -x "${TOURVANE_CHROMIUM:-/usr/bin/chromium}" ] || missing="${missing:+$missing, }chromium"
if [ -n "$missing" ]; then
  if [ -n "${TOURVANE_WEB_REQUIRED:-}" ]; then
    echo "missing: $missing" >&2
    exit 1
  fi
  echo "skipped: missing $missing"
  exit 77
fi
exec node --test "$1"
