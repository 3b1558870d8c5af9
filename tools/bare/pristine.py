"""The root of a bare Debian 12, made once and kept as an archive.

Where its packages come from, and what this machine needs to reach it, is read from this machine's apt.
"""

import os
import shutil
import subprocess

RELEASE = "bookworm"
PERSON = "astro"  # the plain user
WHO = ("root", "user", "user-without-sudo")


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def debian_sources():
    """Lines `deb URI RELEASE COMPONENT` of what this machine's apt has from Debian itself."""
    lines = output_of(
        "apt-get",
        "indextargets",
        "Created-By: Packages",
        "Origin: Debian",
        "--format",
        "deb $(REPO_URI) $(RELEASE) $(COMPONENT)",
    ).splitlines()
    sources = [line for line in dict.fromkeys(lines) if line.split()[2].startswith(RELEASE)]
    if not any(line.split()[2] == RELEASE for line in sources):
        raise SystemExit(f"apt of this machine knows no {RELEASE} (after apt-get update?)")
    return sources


def apt_settings():
    """How this machine's apt fetches: proxies, certificates, dates. What it fetches stays Debian's own."""
    kept = ("Acquire::http", "Acquire::Check-", "Acquire::Retries", "Acquire::ForceIPv")
    lines = [line for line in output_of("apt-config", "dump").splitlines() if line.startswith(kept)]
    for scheme in ("http", "https"):
        proxy = os.environ.get(f"{scheme}_proxy")
        if proxy:
            lines.append(f'Acquire::{scheme}::Proxy "{proxy}";')
    return lines


def write(root, path, text):
    with open(f"{root}/{path}", "w", encoding="utf-8") as file:
        file.write(text)


def settle(root):
    """What lets the root reach what this machine reaches."""
    write(root, "etc/apt/sources.list", "\n".join(debian_sources()) + "\n")
    write(root, "etc/apt/apt.conf.d/90this-machine", "\n".join(apt_settings()) + "\n")
    write(root, "etc/hostname", "bare\n")
    with open("/etc/hosts", encoding="utf-8") as hosts:
        write(root, "etc/hosts", hosts.read() + "\n127.0.1.1 bare\n")
    shutil.copyfile("/etc/resolv.conf", f"{root}/etc/resolv.conf")


def in_root(root, *command):
    done = subprocess.run(
        ["chroot", root, "env", "DEBIAN_FRONTEND=noninteractive", *command],
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        text=True,
        check=False,
    )
    if done.returncode != 0:
        raise SystemExit(f"{done.stdout}\n{' '.join(command)}: status {done.returncode}")


def make_archive(cache, who, archive):
    making = f"{cache}/making"
    shutil.rmtree(making, ignore_errors=True)
    try:
        if who == "root":
            mirror = next(line for line in debian_sources() if line.split()[2] == RELEASE).split()[
                1
            ]
            subprocess.run(
                ["debootstrap", "--variant=minbase", "--include=git", RELEASE, making, mirror],
                check=True,
                stdout=subprocess.DEVNULL,
            )
        else:
            unpack(cache, "root", making)
            settle(making)
            in_root(making, "useradd", "--create-home", "--shell", "/bin/bash", PERSON)
            if who == "user":
                in_root(making, "apt-get", "update")
                in_root(making, "apt-get", "install", "-y", "--no-install-recommends", "sudo")
                in_root(making, "apt-get", "clean")
                write(making, f"etc/sudoers.d/{PERSON}", f"{PERSON} ALL=(ALL) NOPASSWD: ALL\n")
                os.chmod(f"{making}/etc/sudoers.d/{PERSON}", 0o440)
        subprocess.run(["tar", "-C", making, "-cf", archive + ".part", "."], check=True)
        os.rename(archive + ".part", archive)
    finally:
        shutil.rmtree(making, ignore_errors=True)


def unpack(cache, who, root):
    """Unpacks the root of `who` (one of WHO) at `root`, which must not exist; makes it the first time."""
    archive = f"{cache}/{RELEASE}-{who}.tar"
    if not os.path.exists(archive):
        make_archive(cache, who, archive)
    os.makedirs(root)
    subprocess.run(["tar", "-C", root, "-xpf", archive], check=True)
