#!/usr/bin/env bash
# Writes the API reference of the installed headers to build/docs/html. Fails if a public class, operation or constant has
# no comment, or if a comment refers to something that does not exist.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

install_packages doxygen
mkdir -p build/docs
doxygen docs/Doxyfile
echo "build/docs/html/index.html"
