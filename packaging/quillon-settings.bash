# shellcheck shell=bash
complete -W '--start --check --help --version' quillon-settings
