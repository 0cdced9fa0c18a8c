#!/bin/bash
# Converts the files of a list, one path a line, as a job array of Slurm: each task takes every n-th
# of them, and of each task a file of results and a log are left in a folder.
#
#     sbatch --array=1-8 array_job.sh LIST FOLDER
#
#SBATCH --job-name=s2k2ngt
#SBATCH --ntasks=1
#SBATCH --output=/dev/null
# So long before the time is over the command is asked to end, and names what it leaves unfinished.
#SBATCH --signal=B:TERM@30
set -eu
list=$1
folder=$2

mapfile -t files < <(sed -n "$SLURM_ARRAY_TASK_ID~${SLURM_ARRAY_TASK_COUNT}p" "$list")
[ ${#files[@]} -gt 0 ] || exit 0
mkdir -p "$folder"
task=$folder/task-$SLURM_ARRAY_TASK_ID
# In the place of this shell, which would keep the signal to itself.
exec s2k2ngt --json --no-progress -- "${files[@]}" >"$task.json" 2>"$task.log"
