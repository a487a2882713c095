#include "platform/unix_volumes.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

using NameList = std::vector<std::string>;

std::vector<Volume> Volumes(std::string_view mount_table) {
  const TemporaryFolder folder;
  folder.Write("mounts", mount_table);
  return MountedVolumes(folder.Path() / "mounts");
}

NameList Names(std::string_view mount_table) {
  NameList names;
  for (const Volume& volume : Volumes(mount_table)) names.push_back(volume.Name);
  return names;
}

TEST(MountedVolumes, BeginWithTheSystemAndKeepTheTablesOrder) {
  EXPECT_EQ(Names("/dev/sdc1 /media/ann/IPOD vfat rw,nosuid 0 0\n"
                  "/dev/sda2 / ext4 rw,relatime 0 0\n"
                  "/dev/sdb1 /media/ann/BACKUP ext4 rw 0 0\n"
                  "/dev/sdd1 /run/media/ann/STICK exfat rw 0 0\n"
                  "/dev/sde1 /mnt ext4 rw 0 0\n"),
            (NameList{"/", "/media/ann/IPOD", "/media/ann/BACKUP", "/run/media/ann/STICK", "/mnt"}));
}

TEST(MountedVolumes, LeaveOutPseudoFileSystemsAndTheSystemsOwnMounts) {
  EXPECT_EQ(Names("proc /proc proc rw 0 0\n"
                  "sysfs /sys sysfs rw 0 0\n"
                  "udev /dev devtmpfs rw 0 0\n"
                  "devpts /dev/pts devpts rw 0 0\n"
                  "tmpfs /run tmpfs rw 0 0\n"
                  "/dev/sda2 / ext4 rw 0 0\n"
                  "cgroup2 /sys/fs/cgroup cgroup2 rw 0 0\n"
                  "tmpfs /run/user/1000 tmpfs rw 0 0\n"
                  "/dev/loop3 /snap/core/1 squashfs ro 0 0\n"
                  "/dev/sda1 /boot/efi vfat rw 0 0\n"),
            (NameList{"/"}));
}

TEST(MountedVolumes, LeaveOutPseudoFileSystemsAmongTheDisks) {
  EXPECT_EQ(Names("/dev/sdb1 /mnt/system ext4 rw 0 0\n"
                  "proc /mnt/system/proc proc rw 0 0\n"
                  "sysfs /mnt/system/sys sysfs rw 0 0\n"
                  "devtmpfs /mnt/system/dev devtmpfs rw 0 0\n"),
            (NameList{"/", "/mnt/system"}));
}

TEST(MountedVolumes, HoldDisksMountedAnywhere) {
  EXPECT_EQ(Names("/dev/sdc1 /home/ann/ipod vfat rw 0 0\n"), (NameList{"/", "/home/ann/ipod"}));
}

TEST(MountedVolumes, HoldEachMountPointOnce) {
  EXPECT_EQ(Names("/dev/sdc1 /media/ann/IPOD vfat rw 0 0\n"
                  "/dev/sda2 / ext4 rw 0 0\n"
                  "/dev/sdd1 /media/ann/IPOD vfat rw 0 0\n"
                  "rootfs / rootfs rw 0 0\n"),
            (NameList{"/", "/media/ann/IPOD"}));
}

TEST(MountedVolumes, ReadEscapedCharacters) {
  const std::vector<Volume> volumes = Volumes(
      "/dev/sdc1 /media/ann/My\\040iPod\\0402 vfat rw 0 0\n"
      "/dev/sdd1 /media/ann/tab\\011slash\\134040 vfat rw 0 0\n"
      "/dev/sde1 /media/ann/\\040 vfat rw 0 0\n");
  ASSERT_EQ(volumes.size(), 4U);
  EXPECT_EQ(volumes[1].Name, "/media/ann/My iPod 2");
  EXPECT_EQ(volumes[1].Root, "/media/ann/My iPod 2");
  EXPECT_EQ(volumes[2].Root, "/media/ann/tab\tslash\\040");
  EXPECT_EQ(volumes[3].Root, "/media/ann/ ");
}

TEST(MountedVolumes, KeepABackslashThatEscapesNothing) {
  EXPECT_EQ(Names("x /media/a\\b ext4 rw 0 0\ny /media/c\\04 ext4 rw 0 0\nz /media/d\\089 ext4 rw 0 0\n"),
            (NameList{"/", "/media/a\\b", "/media/c\\04", "/media/d\\089"}));
}

TEST(MountedVolumes, ShowNamesAsUtf8AndKeepTheExactRoot) {
  const std::vector<Volume> volumes =
      Volumes("/dev/sdc1 /media/caf\xC3\xA9 vfat rw 0 0\n/dev/sdd1 /media/caf\xE9 vfat rw 0 0\n");
  ASSERT_EQ(volumes.size(), 3U);
  EXPECT_EQ(volumes[1].Name, "/media/caf\xC3\xA9");
  EXPECT_EQ(volumes[2].Name, "/media/caf?");
  EXPECT_EQ(volumes[2].Root, "/media/caf\xE9");
}

TEST(MountedVolumes, AreTheSystemAloneWithoutAMountTable) {
  const TemporaryFolder folder;
  EXPECT_EQ(MountedVolumes(folder.Path() / "gone").size(), 1U);
  EXPECT_EQ(Names(""), (NameList{"/"}));
}

TEST(MountedVolumes, PassOverBrokenLines) {
  EXPECT_EQ(Names("\n\n   \nbroken\n/dev/sdc1 /media/IPOD vfat rw 0 0"), (NameList{"/", "/media/IPOD"}));
}

TEST(MountedVolumes, LeaveOutPartsOfTheSystemsDiskAtOtherPlaces) {
  EXPECT_EQ(Names("/dev/sda2 / btrfs rw,subvol=/@ 0 0\n"
                  "/dev/sda2 /home btrfs rw,subvol=/@home 0 0\n"
                  "/dev/sda2 /.snapshots btrfs rw 0 0\n"
                  "/dev/sda2 /media/ann/bound btrfs rw 0 0\n"
                  "/dev/sda1 /efi vfat rw 0 0\n"
                  "/dev/sda3 /nix/store ext4 ro 0 0\n"
                  "/dev/sdb1 /home/ann/ipod vfat rw 0 0\n"),
            (NameList{"/", "/home/ann/ipod"}));
}

TEST(MountedVolumes, HoldFoldersOfOtherComputersOnlyWherePeopleMountThem) {
  EXPECT_EQ(Names("nas:/music /mnt/music nfs4 rw 0 0\n"
                  "nas:/ann /home/ann/nas nfs4 rw 0 0\n"
                  "none /mnt/memory ramfs rw 0 0\n"
                  "overlay /run/media/x overlay rw 0 0\n"),
            (NameList{"/", "/mnt/music"}));
}

TEST(MountedVolumes, LeaveOutFilesMountedOverFiles) {
  const TemporaryFolder folder;
  folder.Write("settings", "x");
  EXPECT_EQ(Names("/dev/sdb1 " + (folder.Path() / "settings").string() + " ext4 rw 0 0\n"), (NameList{"/"}));
}

}  // namespace
}  // namespace tavrel::test
