# shellcheck shell=bash
complete -W '--start --help --version' quillon-settings
