# Sourced by ./run, ./test and the tools: installs the Debian 12 packages that are missing, and nothing else.
# `also` names packages that only the one tool needs.

packages=(
  git cmake ninja-build g++
  qt6-base-dev libfontconfig-dev libqt6sql6-sqlite libkainjow-mustache-dev
  libgtest-dev libgmock-dev libbenchmark-dev libsqlite3-dev
  clang-format clang-tidy
  fonts-dejavu-core fonts-liberation2 poppler-utils
  ${also[@]+"${also[@]}"}
)

missing=()
for package in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$status" = installed ] || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  as_root=()
  [ "$(id -u)" = 0 ] || as_root=(sudo)
  "${as_root[@]}" apt-get update -q
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
fi

jobs=$(nproc)
