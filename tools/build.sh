# Shared by run, test, bench and .ci/run; sourced from the root of the project.

# configure_preset PRESET [-DNAME=VALUE...]: its output is seen only when it fails.
configure_preset() {
  local preset=$1 log launcher=()
  shift
  command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  log=$(mktemp)
  if ! cmake --preset "$preset" "${launcher[@]}" "$@" >"$log" 2>&1; then
    cat "$log" >&2
    rm -f "$log"
    echo "configuring preset $preset failed" >&2
    return 1
  fi
  rm -f "$log"
}

# build_preset PRESET DIR [TARGET]: on a terminal the build shows its progress; elsewhere only what
# fails is seen.
build_preset() {
  local preset=$1 dir=$2 target=${3:-all}
  if [ -t 1 ]; then
    cmake --build --preset "$preset" --target "$target" --parallel "$(nproc)"
  elif ! cmake --build --preset "$preset" --target "$target" --parallel "$(nproc)" >"$dir/build.log" 2>&1; then
    grep -E -A 25 '^FAILED|error:|ninja:' "$dir/build.log" | head -n 200 >&2
    echo "building preset $preset failed; all of it: $dir/build.log" >&2
    return 1
  fi
}

# preset_dir PRESET: where CMakePresets.json lets it build.
preset_dir() {
  case $1 in
    dev) echo build ;;
    release) echo build-release ;;
    asan-ubsan) echo build-asan ;;
    tsan) echo build-tsan ;;
    *) return 1 ;;
  esac
}
