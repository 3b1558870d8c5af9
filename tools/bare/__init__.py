"""A machine that has nothing: a root of Debian 12, and commands that are run in it."""
